#include "web/desk/told_scene.h"

#include <array>
#include <utility>

#include "cli/scene/scene_report.h"
#include "web/desk/node_look.h"
#include "web/desk/told.h"

namespace web {
namespace {

using cli::JsonWriter;
using cli::SceneTreeEntry;
using host::Node;
using Layout = JsonWriter::Layout;

constexpr unsigned kChannels = 3;

void WriteColor(JsonWriter& json, WireColor color) {
  constexpr unsigned kByte = 0xFF;
  constexpr unsigned kBits = 8;
  json.Key("color");
  json.BeginArray(Layout::kOneLine);
  for (unsigned channel = 0; channel < kChannels; ++channel) {
    json.Integer((color >> (kBits * channel)) & kByte);
  }
  json.EndArray();
}

const char* NameOf(NodeKind kind) {
  constexpr std::array<const char*, 3> kNames = {"group", "bone", "marker"};
  return kNames[static_cast<std::size_t>(kind)];
}

void WriteNode(JsonWriter& json, const Node& node) {
  const NodeLook look = LookOf(node);
  json.BeginObject();
  cli::WriteInteger(json, "node", node.Handle());
  cli::WriteText(json, "name", node.Name());
  cli::WriteInteger(json, "parent", node.Parent()->IsRoot() ? 0 : node.Parent()->Handle());
  cli::WriteText(json, "kind", NameOf(look.kind));
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

// Whether the pick mode lets `node` be picked.
bool IsPickable(host::Application& application, host::Node& node) {
  PickModeCallback* const mode = application.callbacks().PickMode();
  if (mode == nullptr) return false;
  PickNodeCallback* const filter = mode->GetFilter();
  return filter == nullptr || filter->Filter(&node);
}

}  // namespace

void TellScene(const host::Scene& scene, const ScenePlaces& places) {
  Telling telling("scene");
  JsonWriter& json = telling.Json();
  json.Key("scene");
  json.BeginObject();
  cli::WriteInteger(json, "firstFrame", places.first_frame);
  cli::WriteInteger(json, "step", places.step);
  cli::WriteCount(json, "frames", places.frames);
  cli::WriteNumber(json, "rate",
                   static_cast<double>(kTicksPerSecond) / scene.Animation().TicksPerFrame());
  cli::WriteNumber(json, "millimetresPerUnit", scene.MillimetersPerUnit());
  json.Key("nodes");
  json.BeginArray(Layout::kLines);
  for (const Node* const node : places.nodes) WriteNode(json, *node);
  json.EndArray();
  json.EndObject();
  telling.Send({&places.positions, &places.ends});
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
  if (selection == selection_ && select_ == told_select_) return;
  selection_ = std::move(selection);
  told_select_ = select_;
  Telling telling("selection");
  WriteHandles(telling.Json(), "nodes", selection_);
  cli::WriteInteger(telling.Json(), "number", select_);
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

}  // namespace web
