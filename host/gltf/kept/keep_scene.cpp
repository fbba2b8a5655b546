#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/animation/euler_controller.h"
#include "host/gltf/file/names.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/kept/kept_fields.h"
#include "host/gltf/kept/kept_recording.h"
#include "host/gltf/kept/kept_scene.h"
#include "host/gltf/kept/kept_text.h"

namespace host::gltf {

namespace {

using nlohmann::json;

std::array<float, 3> Components(const Point3& point) { return {point.x, point.y, point.z}; }

std::array<float, 4> Components(const Quat& rotation) {
  return {rotation.x, rotation.y, rotation.z, rotation.w};
}

json ClassRecord(ClassId class_id) { return {class_id.part_a, class_id.part_b}; }

json ModeRecord(const SuspendableMode& mode) {
  return {{field::kOn, mode.IsOn()},
          {field::kRemembered, mode.Remembered()},
          {field::kUnmatchedResumes, mode.UnmatchedResumes()}};
}

json PropertyRecords(const Node& node) {
  json records = json::array();
  for (const auto& [key, value] : node.Properties()) {
    if (!std::isfinite(value)) {
      RefuseNotFinite(node, "user property \"" + ViewerName(key) + "\"");
    }
    json& record = records.emplace_back();
    SetText(record, field::kKey, key);
    record[field::kValue] = value;
  }
  return records;
}

json OffsetRecord(const Node& node) {
  std::vector<float> numbers;
  for (int row = 0; row < 4; ++row) {
    const auto components = Components(node.ObjectOffset()->GetRow(row));
    numbers.insert(numbers.end(), components.begin(), components.end());
  }
  if (!AreFinite(numbers)) RefuseNotFinite(node, "object offset");
  return numbers;
}

// What every node has, the root included.
json CommonRecord(const Node& node) {
  json record;
  SetText(record, field::kName, node.Name());
  record[field::kColor] = node.WireColor();
  record[field::kBoneDisplay] = node.BoneDisplay();
  if (node.IsBone()) record[field::kBoneSince] = *node.BoneSince();
  if (node.ObjectOffset().has_value()) record[field::kObjectOffset] = OffsetRecord(node);
  if (!node.Properties().empty()) record[field::kProperties] = PropertyRecords(node);
  return record;
}

json ObjectRecord(const Node& node) {
  const SceneObject& object = *node.ShownObject();
  ::Object& own = node.ShownObject()->AsObject();
  const std::vector<double> parameters = object.Parameters();
  if (!AreFinite(parameters)) RefuseNotFinite(node, "object");
  return {{field::kSuperClass, own.SuperClassID()},
          {field::kClass, ClassRecord(own.ClassID())},
          {field::kParameters, parameters}};
}

// The ticks of all controllers; controllers that have the same share them.
class TickLists {
 public:
  // Where those of `controller` begin.
  std::size_t FirstOf(const Controller& controller);

  const std::vector<std::uint32_t>& All() const { return all_; }

 private:
  std::vector<std::uint32_t> all_;
  std::map<std::vector<std::uint32_t>, std::size_t> firsts_;
};

std::size_t TickLists::FirstOf(const Controller& controller) {
  std::vector<std::uint32_t> ticks;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    ticks.push_back(static_cast<std::uint32_t>(controller.KeyTick(key)));
  }
  const auto [entry, added] = firsts_.try_emplace(std::move(ticks), all_.size());
  if (added) all_.insert(all_.end(), entry->first.begin(), entry->first.end());
  return entry->second;
}

template <typename KeyedController>
json ControllerRecord(KeyedController& controller, const Node& node, const std::string& what,
                      TickLists& ticks) {
  const auto constant = Components(controller.Constant());
  if (!AreFinite(constant)) RefuseNotFinite(node, what + " without keys");
  json record = {{field::kClass, ClassRecord(controller.ClassID())}, {field::kConstant, constant}};
  if (controller.KeyCount() == 0) return record;
  record[field::kKeys] = controller.KeyCount();
  record[field::kTicks] = ticks.FirstOf(controller);
  return record;
}

json NodeRecord(const PlacedNode& placed, TickLists& ticks) {
  const Node& node = *placed.node;
  TransformController& transform = *node.Transform();
  json record = CommonRecord(node);
  record[field::kParent] = placed.parent;
  record[field::kObject] = ObjectRecord(node);
  record[field::kTransformClass] = ClassRecord(transform.ClassID());
  record[field::kPosition] = ControllerRecord(transform.Position(), node, "position", ticks);
  record[field::kRotation] = ControllerRecord(transform.Rotation(), node, "rotation", ticks);
  record[field::kRotation][field::kKind] = transform.Rotation().KindName();
  record[field::kScale] = ControllerRecord(transform.Scale(), node, "scale", ticks);
  if (node.Measurement()) record[field::kMeasurement] = MeasurementRecord(*node.Measurement());
  return record;
}

json SelectionRecord(const Scene& scene, const NodeTree& tree) {
  std::unordered_map<const Node*, std::size_t> indices;
  for (std::size_t i = 0; i < tree.size(); ++i) indices.emplace(tree[i].node, i);
  json record = json::array();
  for (const Node* node : scene.Selection()) record.push_back(indices.at(node));
  return record;
}

json SceneRecord(const Scene& scene, const NodeTree& tree) {
  const AnimationState& animation = scene.Animation();
  json record = {{field::kFrameRate, animation.FrameRate()},
                 {field::kRange, {animation.Range().Start(), animation.Range().End()}},
                 {field::kTime, animation.Time()},
                 {field::kMillimetersPerUnit, scene.MillimetersPerUnit()},
                 {field::kAnimateMode, ModeRecord(animation.AnimateMode())},
                 {field::kSetKeyMode, ModeRecord(animation.SetKeyMode())},
                 {field::kSelection, SelectionRecord(scene, tree)},
                 {field::kRoot, CommonRecord(scene.Root())}};
  if (scene.Recording()) record[field::kRecording] = RecordingRecord(*scene.Recording());
  return record;
}

// --- Keys, controller by controller. That they are finite has been seen to for the viewers. ---

template <typename KeyedController>
void AppendValues(const KeyedController& controller, BinaryData& data) {
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    data.AppendNumbers(Components(controller.KeyValue(key)));
  }
}

void AppendVectors(const TransformController& transform, BinaryData& data) {
  AppendValues(transform.Position(), data);
  AppendValues(transform.Scale(), data);
}

void AppendRotations(const TransformController& transform, BinaryData& data) {
  AppendValues(transform.Rotation(), data);
}

void AppendAngles(const TransformController& transform, BinaryData& data) {
  const auto* euler = dynamic_cast<const EulerController*>(&transform.Rotation());
  if (euler == nullptr) return;
  for (std::size_t key = 0; key < euler->KeyCount(); ++key) {
    const Vector& angles = euler->KeyAngles(key);
    data.AppendNumbers(std::array<double, 3>{angles.x, angles.y, angles.z});
  }
}

// Keeps the extension of a file, and what belongs to it in the file's data.
class Keeper {
 public:
  Keeper(const NodeTree& tree, BinaryData& data) : tree_(tree), data_(data) {}

  json Extension(const Scene& scene);

 private:
  using Append = void (*)(const TransformController& transform, BinaryData& data);

  // Keeps what `append` has of every node.
  void AddKeys(const char* name, const ElementForm& form, Append append);

  // Adds an accessor for all numbers of the view that was begun last.
  void AddAccessor(const char* name, const ElementForm& form);

  // A line for the scene, and one for each node.
  void AddRecord(const Scene& scene);

  const NodeTree& tree_;
  BinaryData& data_;
  TickLists ticks_;
  json extension_;
};

json Keeper::Extension(const Scene& scene) {
  extension_ = {{field::kVersion, kExtensionVersion}};
  AddRecord(scene);
  data_.BeginView();
  data_.AppendNumbers(ticks_.All());
  AddAccessor(field::kTicks, kWordForm);
  AddKeys(field::kVectors, kThreeNumbersForm, AppendVectors);
  AddKeys(field::kRotations, kFourNumbersForm, AppendRotations);
  AddKeys(field::kAngles, kWordForm, AppendAngles);
  return std::move(extension_);
}

void Keeper::AddKeys(const char* name, const ElementForm& form, Append append) {
  data_.BeginView();
  for (const PlacedNode& placed : tree_) append(*placed.node->Transform(), data_);
  AddAccessor(name, form);
}

void Keeper::AddAccessor(const char* name, const ElementForm& form) {
  if (const auto accessor = data_.AddViewAccessor(form)) extension_[name] = *accessor;
}

void Keeper::AddRecord(const Scene& scene) {
  extension_[field::kScene] = data_.BeginView();
  data_.Append(SceneRecord(scene, tree_).dump() + '\n');
  for (const PlacedNode& placed : tree_) data_.Append(NodeRecord(placed, ticks_).dump() + '\n');
}

}  // namespace

void KeepScene(const Scene& scene, const NodeTree& tree, Document& document) {
  document.extensions[kExtensionName] = Keeper(tree, document.data).Extension(scene);
}

KeyCounts KeptKeys(const NodeTree& tree) {
  KeyCounts keys;
  for (const PlacedNode& placed : tree) {
    const TransformController& transform = *placed.node->Transform();
    const std::size_t rotations = transform.Rotation().KeyCount();
    keys.vectors += transform.Position().KeyCount() + transform.Scale().KeyCount();
    keys.rotations += rotations;
    const bool is_euler = dynamic_cast<const EulerController*>(&transform.Rotation()) != nullptr;
    if (is_euler) keys.angles += rotations;
  }
  return keys;
}

void LeaveSceneOut(Document& document) {
  document.asset_extras[field::kLeftOut] = json::array({kExtensionName});
}

}  // namespace host::gltf
