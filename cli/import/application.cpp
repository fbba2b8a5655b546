#include "cli/import/application.h"

#include <array>
#include <optional>
#include <unordered_map>
#include <utility>

#include "formats/units/units.h"
#include "host/scene/bone_object.h"

namespace cli {
namespace {

using orvane::AppliedFile;
using orvane::ApplyItem;
using orvane::BasePose;
using orvane::BoneShape;
using orvane::EulerRotation;
using orvane::HtrSegment;
using orvane::kNoParent;
using orvane::RotationMatrix3;
using orvane::Vector3;

constexpr int kLengthParameter = 3;

Vector3 Scaled(const Vector3& vector, double factor) {
  return {vector.x() * factor, vector.y() * factor, vector.z() * factor};
}

BoneShape ShapeOf(const HtrSegment& segment, double millimeters) {
  return {segment.GetBoneLength() * millimeters,
          BasePose{Scaled(segment.GetBaseTranslation(), millimeters),
                   RotationMatrix3(segment.GetBaseRotation())}};
}

// Numbers kept on a node; nothing when one is missing.
template <std::size_t kSize>
std::optional<std::array<double, kSize>> Kept(const host::Node& node,
                                              const std::array<const char*, kSize>& names) {
  std::array<double, kSize> values;
  for (std::size_t index = 0; index < kSize; ++index) {
    const std::optional<float> number = node.Properties().Find(names[index]);
    if (!number) return std::nullopt;
    values[index] = static_cast<double>(*number);
  }
  return values;
}

// What an import has kept of its file on a bone, or how long the bone is drawn.
BoneShape ShapeOf(const host::Node& node, const host::BoneObject& bone, double millimeters) {
  const auto kept = Kept<7>(node, {"HTRBaseLength", "HTRBaseTransX", "HTRBaseTransY",
                                   "HTRBaseTransZ", "HTRBaseRotX", "HTRBaseRotY", "HTRBaseRotZ"});
  if (!kept) return {static_cast<double>(bone.Parameter(kLengthParameter)) * millimeters, {}};
  const auto& [length, x, y, z, angle_x, angle_y, angle_z] = *kept;
  return {length * millimeters,
          BasePose{Scaled(Vector3(x, y, z), millimeters),
                   RotationMatrix3(EulerRotation(angle_x, angle_y, angle_z))}};
}

ApplyItem ItemOf(const host::Node& node, std::size_t parent, double millimeters) {
  ApplyItem item{node.Name(), parent, {}};
  const auto* const bone = dynamic_cast<const host::BoneObject*>(node.ShownObject());
  if (bone != nullptr) item.shape = ShapeOf(node, *bone, millimeters);
  return item;
}

// Fills in the scene, each node before its children and those in their order.
void Describe(const host::Scene& scene, Application& application) {
  struct Waiting {
    const host::Node* node;
    std::size_t parent;
  };
  std::unordered_map<const host::Node*, std::size_t> places;
  std::vector<Waiting> waiting = {{&scene.Root(), kNoParent}};
  while (!waiting.empty()) {
    const Waiting next = waiting.back();
    waiting.pop_back();
    std::size_t place = kNoParent;
    if (!next.node->IsRoot()) {
      place = application.nodes.size();
      places.emplace(next.node, place);
      application.nodes.push_back(next.node);
      application.scene.nodes.push_back(
          ItemOf(*next.node, next.parent, scene.MillimetersPerUnit()));
    }
    const auto& children = next.node->Children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
      waiting.push_back({*child, place});
    }
  }
  for (const host::Node* node : scene.Selection()) {
    application.scene.selected.push_back(places.at(node));
  }
}

}  // namespace

std::vector<const host::Node*> Application::KeyedNodes(const ImportChoices& choices) const {
  std::vector<const host::Node*> keyed;
  for (const orvane::ApplyPair& pair : plan.pairs) keyed.push_back(nodes[pair.node]);
  // Markers without an object of their names then move the last one.
  if (choices.selected_only && !plan.file_only.empty() && !scene.selected.empty()) {
    keyed.push_back(nodes[scene.selected.back()]);
  }
  return keyed;
}

AppliedFile DescribeFile(const orvane::HtrDocument& document) {
  const double millimeters =
      orvane::LengthFactor(document.GetCalibrationUnits(), orvane::kMillimeters);
  std::unordered_map<const HtrSegment*, std::size_t> places;
  for (const HtrSegment& segment : document.segments()) places.emplace(&segment, places.size());
  AppliedFile file;
  for (const HtrSegment& segment : document.segments()) {
    const auto parent = places.find(segment.GetParent());
    if (segment.GetIsRoot() && file.root == kNoParent) file.root = file.items.size();
    file.items.push_back({segment.GetName(), parent == places.end() ? kNoParent : parent->second,
                          ShapeOf(segment, millimeters)});
  }
  return file;
}

AppliedFile DescribeFile(const orvane::TRCDocument& document) {
  AppliedFile file;
  for (const orvane::TRCMarker& marker : document.markers()) file.items.push_back({marker.Name()});
  return file;
}

Application Apply(AppliedFile file, FileKind kind, const host::Scene& scene) {
  Application application;
  application.file = std::move(file);
  Describe(scene, application);
  application.plan = kind == FileKind::kHtr ? PlanMotion(application.file, application.scene)
                                            : PlanMarkers(application.file, application.scene);
  application.differences = CompareBones(application.file, application.scene, application.plan);
  return application;
}

}  // namespace cli
