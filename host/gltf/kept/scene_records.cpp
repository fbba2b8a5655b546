#include "host/gltf/kept/scene_records.h"

#include <array>
#include <nlohmann/json.hpp>
#include <unordered_map>
#include <utility>

#include "host/gltf/file/json_text.h"
#include "host/gltf/file/names.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/kept/kept_fields.h"
#include "host/gltf/kept/kept_recording.h"
#include "host/gltf/kept/kept_text.h"
#include "host/gltf/kept/kept_values.h"

namespace host::gltf {

namespace {

// --- What is finite ---

std::array<float, 12> OffsetOf(const Node& node) {
  std::array<float, 12> numbers;
  float* next = numbers.data();
  for (int row = 0; row < 4; ++row) {
    const auto components = Components(node.ObjectOffset()->GetRow(row));
    next = std::copy(components.begin(), components.end(), next);
  }
  return numbers;
}

template <typename KeyedController>
void RequireFiniteConstant(const KeyedController& controller, const Node& node, const char* what) {
  if (AreFinite(Components(controller.Constant()))) return;
  RefuseNotFinite(node, std::string(what) + " without keys");
}

// --- The members, in the order of the alphabet ---

void AddClass(JsonObject& record, const char* name, ClassId class_id) {
  record.Add(name, std::array<std::uint32_t, 2>{class_id.part_a, class_id.part_b});
}

void AddMode(JsonObject& record, const char* name, const SuspendableMode& mode) {
  record.Member(name) += nlohmann::json({{field::kOn, mode.IsOn()},
                                         {field::kRemembered, mode.Remembered()},
                                         {field::kUnmatchedResumes, mode.UnmatchedResumes()}})
                             .dump();
}

void AddBone(JsonObject& record, const Node& node) {
  record.Add(field::kBoneDisplay, node.BoneDisplay());
  if (node.IsBone()) record.Add(field::kBoneSince, *node.BoneSince());
  record.Add(field::kColor, node.WireColor());
}

void AddObjectOffset(JsonObject& record, const Node& node) {
  if (node.ObjectOffset()) record.Add(field::kObjectOffset, OffsetOf(node));
}

void AddProperties(JsonObject& record, const Node& node) {
  if (node.Properties().empty()) return;
  std::string& text = record.Member(field::kProperties);
  char separator = '[';
  for (const auto& [key, value] : node.Properties()) {
    text += std::exchange(separator, ',');
    JsonObject property(text);
    AddText(property, field::kKey, key);
    property.Add(field::kValue, value);
    property.End();
  }
  text += ']';
}

void AddObject(JsonObject& record, const Node& node) {
  ::Object& own = node.ShownObject()->AsObject();
  JsonObject object(record.Member(field::kObject));
  AddClass(object, field::kClass, own.ClassID());
  object.Add(field::kParameters, node.ShownObject()->Parameters());
  object.Add(field::kSuperClass, own.SuperClassID());
  object.End();
}

// `kind` is null where there is only one.
template <typename KeyedController>
void AddController(JsonObject& record, const char* name, KeyedController& controller,
                   const char* kind, TickLists& ticks) {
  const bool has_keys = controller.KeyCount() > 0;
  JsonObject members(record.Member(name));
  AddClass(members, field::kClass, controller.ClassID());
  members.Add(field::kConstant, Components(controller.Constant()));
  if (has_keys) members.Add(field::kKeys, controller.KeyCount());
  if (kind != nullptr) members.Add(field::kKind, kind);
  if (has_keys) members.Add(field::kTicks, ticks.FirstOf(controller));
  members.End();
}

void AddRoot(JsonObject& record, const Node& root) {
  JsonObject members(record.Member(field::kRoot));
  AddBone(members, root);
  AddText(members, field::kName, root.Name());
  AddObjectOffset(members, root);
  AddProperties(members, root);
  members.End();
}

void AddSelection(JsonObject& record, const Scene& scene, const NodeTree& tree) {
  std::vector<std::size_t> selection;
  if (!scene.Selection().empty()) {
    std::unordered_map<const Node*, std::size_t> indices;
    for (std::size_t i = 0; i < tree.size(); ++i) indices.emplace(tree[i].node, i);
    for (const Node* node : scene.Selection()) selection.push_back(indices.at(node));
  }
  record.Add(field::kSelection, selection);
}

}  // namespace

std::size_t TickLists::FirstOf(const Controller& controller) {
  std::vector<std::uint32_t> ticks;
  ticks.reserve(controller.KeyCount());
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    ticks.push_back(static_cast<std::uint32_t>(controller.KeyTick(key)));
  }
  const auto [entry, added] = firsts_.try_emplace(std::move(ticks), all_.size());
  if (added) all_.insert(all_.end(), entry->first.begin(), entry->first.end());
  return entry->second;
}

void RequireFiniteRecord(const Node& node) {
  if (node.ObjectOffset() && !AreFinite(OffsetOf(node))) RefuseNotFinite(node, "object offset");
  for (const auto& [key, value] : node.Properties()) {
    if (std::isfinite(value)) continue;
    RefuseNotFinite(node, "user property \"" + ViewerName(key) + "\"");
  }
  if (node.IsRoot()) return;
  if (!AreFinite(node.ShownObject()->Parameters())) RefuseNotFinite(node, "object");
  RequireFiniteConstant(node.Transform()->Position(), node, "position");
  RequireFiniteConstant(node.Transform()->Rotation(), node, "rotation");
  RequireFiniteConstant(node.Transform()->Scale(), node, "scale");
}

void AppendSceneRecord(const Scene& scene, const NodeTree& tree, std::string& text) {
  const AnimationState& animation = scene.Animation();
  const Interval& range = animation.Range();
  JsonObject record(text);
  AddMode(record, field::kAnimateMode, animation.AnimateMode());
  record.Add(field::kFrameRate, animation.FrameRate());
  record.Add(field::kMillimetersPerUnit, scene.MillimetersPerUnit());
  record.Add(field::kRange, std::array<TimeValue, 2>{range.Start(), range.End()});
  if (scene.Recording()) {
    record.Member(field::kRecording) += RecordingRecord(*scene.Recording()).dump();
  }
  AddRoot(record, scene.Root());
  AddSelection(record, scene, tree);
  AddMode(record, field::kSetKeyMode, animation.SetKeyMode());
  record.Add(field::kTime, animation.Time());
  record.End();
}

void AppendNodeRecord(const PlacedNode& placed, TickLists& ticks, std::string& text) {
  const Node& node = *placed.node;
  TransformController& transform = *node.Transform();
  JsonObject record(text);
  AddBone(record, node);
  if (node.Measurement()) {
    record.Member(field::kMeasurement) += MeasurementRecord(*node.Measurement()).dump();
  }
  AddText(record, field::kName, node.Name());
  AddObject(record, node);
  AddObjectOffset(record, node);
  record.Add(field::kParent, placed.parent);
  AddController(record, field::kPosition, transform.Position(), nullptr, ticks);
  AddProperties(record, node);
  AddController(record, field::kRotation, transform.Rotation(), transform.Rotation().KindName(),
                ticks);
  AddController(record, field::kScale, transform.Scale(), nullptr, ticks);
  AddClass(record, field::kTransformClass, transform.ClassID());
  record.End();
}

}  // namespace host::gltf
