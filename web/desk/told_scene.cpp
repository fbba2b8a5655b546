#include "web/desk/told_scene.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "cli/scene/scene_report.h"
#include "host/scene/bone_object.h"
#include "host/scene/point_helper.h"
#include "host/scene/sphere_object.h"
#include "inspect/mapping/name_suggestion.h"
#include "web/desk/told.h"

namespace web {
namespace {

using cli::JsonWriter;
using cli::SceneTreeEntry;
using host::Node;
using Layout = JsonWriter::Layout;

constexpr float kNowhere = std::numeric_limits<float>::quiet_NaN();
constexpr std::size_t kAxes = 3;

struct Look {
  const char* kind = "group";
  double size = 0.0;
};

Look LookOf(const Node& node) {
  const host::SceneObject* const object = node.ShownObject();
  if (const auto* bone = dynamic_cast<const host::BoneObject*>(object)) {
    return {"bone", static_cast<double>(bone->Parameter(kBoneLengthParameter))};
  }
  if (const auto* sphere = dynamic_cast<const host::SphereObject*>(object)) {
    return {"marker", static_cast<double>(sphere->Radius())};
  }
  if (dynamic_cast<const host::PointHelper*>(object) != nullptr) return {"marker", 0.0};
  return {};
}

void WriteColor(JsonWriter& json, WireColor color) {
  constexpr unsigned kByte = 0xFF;
  constexpr unsigned kBits = 8;
  json.Key("color");
  json.BeginArray(Layout::kOneLine);
  for (unsigned channel = 0; channel < kAxes; ++channel) {
    json.Integer((color >> (kBits * channel)) & kByte);
  }
  json.EndArray();
}

void WriteNode(JsonWriter& json, const Node& node) {
  const Look look = LookOf(node);
  json.BeginObject();
  cli::WriteInteger(json, "node", node.Handle());
  cli::WriteText(json, "name", node.Name());
  cli::WriteInteger(json, "parent", node.Parent()->IsRoot() ? 0 : node.Parent()->Handle());
  cli::WriteText(json, "kind", look.kind);
  cli::WriteNumber(json, "size", look.size);
  WriteColor(json, node.WireColor());
  json.EndObject();
}

void WriteHandles(JsonWriter& json, const char* key, const std::vector<std::uint32_t>& handles) {
  json.Key(key);
  json.BeginArray(Layout::kOneLine);
  for (const std::uint32_t handle : handles) json.Integer(handle);
  json.EndArray();
}

// Where nodes are, at [frame][node] by three numbers.
class Places {
 public:
  Places(const std::vector<SceneTreeEntry>& nodes, const host::AnimationState& animation)
      : nodes_(nodes), animation_(animation) {
    const int ticks = animation.TicksPerFrame();
    first_ = animation.Range().Start() / ticks;
    const int last = std::max(animation.Range().End() / ticks, first_);
    frames_ = static_cast<std::size_t>(last - first_) + 1;
    positions.assign(kAxes * frames_ * nodes.size(), kNowhere);
    ends = positions;
  }

  [[nodiscard]] int First() const { return first_; }
  [[nodiscard]] std::size_t Frames() const { return frames_; }

  void Fill() {
    for (std::size_t i = 0; i < nodes_.size(); ++i) Fill(*nodes_[i].node, i);
  }

  std::vector<float> positions;
  std::vector<float> ends;

 private:
  void Fill(const Node& node, std::size_t index) {
    const Look look = LookOf(node);
    const bool is_bone = std::string_view(look.kind) == "bone";
    const auto length = static_cast<float>(look.size);
    for (std::size_t frame = 0; frame < frames_; ++frame) {
      const TimeValue time = (first_ + static_cast<int>(frame)) * animation_.TicksPerFrame();
      if (node.Measurement() && node.Measurement()->IsMissing(time)) continue;
      const Matrix3 place = node.WorldTransform(time);
      const Point3& at = place.GetRow(3);
      const Point3& along = place.GetRow(0);
      float* const position = &positions[kAxes * (frame * nodes_.size() + index)];
      float* const end = &ends[kAxes * (frame * nodes_.size() + index)];
      const std::array<float, kAxes> from = {at.x, at.y, at.z};
      const std::array<float, kAxes> way = {along.x, along.y, along.z};
      for (std::size_t axis = 0; axis < kAxes; ++axis) {
        position[axis] = from[axis];
        if (is_bone) end[axis] = from[axis] + length * way[axis];
      }
    }
  }

  const std::vector<SceneTreeEntry>& nodes_;
  const host::AnimationState& animation_;
  int first_ = 0;
  std::size_t frames_ = 0;
};

const char* WordFor(orvane::NameReason reason) {
  constexpr std::array<const char*, 4> kWords = {"same", "subject", "case", "synonym"};
  return kWords[static_cast<std::size_t>(reason)];
}

}  // namespace

void TellScene(const host::Scene& scene) {
  const std::vector<SceneTreeEntry> nodes = cli::ListScene(scene);
  const host::AnimationState& animation = scene.Animation();
  Places places(nodes, animation);
  places.Fill();
  Telling telling("scene");
  JsonWriter& json = telling.Json();
  json.Key("scene");
  json.BeginObject();
  cli::WriteInteger(json, "firstFrame", places.First());
  cli::WriteCount(json, "frames", places.Frames());
  cli::WriteNumber(json, "rate", static_cast<double>(kTicksPerSecond) / animation.TicksPerFrame());
  cli::WriteNumber(json, "millimetresPerUnit", scene.MillimetersPerUnit());
  json.Key("nodes");
  json.BeginArray(Layout::kLines);
  for (const SceneTreeEntry& entry : nodes) WriteNode(json, *entry.node);
  json.EndArray();
  json.EndObject();
  telling.Send({&places.positions, &places.ends});
}

void TellSuggestions(const host::Scene& scene) {
  const std::vector<SceneTreeEntry> nodes = cli::ListScene(scene);
  std::vector<std::string> names;
  names.reserve(nodes.size());
  for (const SceneTreeEntry& entry : nodes) names.push_back(entry.node->Name());
  const orvane::NameSuggestion suggestion = orvane::SuggestByNames(names);
  if (suggestion.sure.empty()) return;
  Telling telling("suggestions");
  JsonWriter& json = telling.Json();
  json.Key("suggested");
  json.BeginArray(Layout::kLines);
  for (const orvane::SuggestedMarker& each : suggestion.sure) {
    json.BeginObject();
    cli::WriteText(json, "standard", each.standard);
    cli::WriteInteger(json, "node", nodes[each.marker].node->Handle());
    cli::WriteText(json, "reason", WordFor(each.reason));
    json.EndObject();
  }
  json.EndArray();
  telling.Send();
}

void ToldScene::Update(host::Application& application) {
  TellColors(application.scene());
  TellSelection(application.scene());
  TellPickMode(application);
}

void ToldScene::TakeOver(const host::Scene& scene) {
  colors_.clear();
  for (const SceneTreeEntry& entry : cli::ListScene(scene)) {
    colors_[entry.node->Handle()] = entry.node->WireColor();
  }
}

void ToldScene::TellColors(const host::Scene& scene) {
  std::vector<std::uint32_t> changed;
  for (auto& [handle, told] : colors_) {
    const Node* const node = scene.FindByHandle(handle);
    if (node == nullptr || node->WireColor() == told) continue;
    told = node->WireColor();
    changed.push_back(handle);
  }
  if (changed.empty()) return;
  Telling telling("colors");
  JsonWriter& json = telling.Json();
  json.Key("changed");
  json.BeginArray(Layout::kLines);
  for (const std::uint32_t handle : changed) {
    json.BeginObject();
    cli::WriteInteger(json, "node", handle);
    WriteColor(json, colors_[handle]);
    json.EndObject();
  }
  json.EndArray();
  telling.Send();
}

void ToldScene::TellSelection(const host::Scene& scene) {
  std::vector<std::uint32_t> selection;
  selection.reserve(scene.Selection().size());
  for (const Node* const node : scene.Selection()) selection.push_back(node->Handle());
  if (selection == selection_) return;
  selection_ = std::move(selection);
  Telling telling("selection");
  WriteHandles(telling.Json(), "nodes", selection_);
  telling.Send();
}

void ToldScene::TellPickMode(host::Application& application) {
  if (application.picking().IsActive() == is_picking_) return;
  is_picking_ = !is_picking_;
  std::vector<std::uint32_t> pickable;
  if (is_picking_) {
    for (const auto& [handle, color] : colors_) {
      Node* const node = application.scene().FindByHandle(handle);
      if (node != nullptr && IsPickable(application, *node)) pickable.push_back(handle);
    }
  }
  Telling telling("pick-mode");
  WriteBool(telling.Json(), "on", is_picking_);
  WriteHandles(telling.Json(), "pickable", pickable);
  telling.Send();
}

bool IsPickable(host::Application& application, host::Node& node) {
  PickModeCallback* const mode = application.callbacks().PickMode();
  if (mode == nullptr) return false;
  PickNodeCallback* const filter = mode->GetFilter();
  return filter == nullptr || filter->Filter(&node);
}

}  // namespace web
