#include <array>
#include <bit>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/animation/euler_controller.h"
#include "host/gltf/kept_fields.h"
#include "host/gltf/kept_scene.h"
#include "host/gltf/names.h"
#include "host/gltf/refusal.h"

namespace host::gltf {

namespace {

using nlohmann::json;

std::array<float, 3> Components(const Point3& point) { return {point.x, point.y, point.z}; }

std::array<float, 4> Components(const Quat& rotation) {
  return {rotation.x, rotation.y, rotation.z, rotation.w};
}

json ClassRecord(ClassId class_id) { return {class_id.part_a, class_id.part_b}; }

std::string Hexadecimal(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string digits;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    digits += {kDigits[code >> 4U], kDigits[code & 15U]};
  }
  return digits;
}

// JSON holds nothing but UTF-8.
void SetText(json& record, const std::string& field, const std::string& bytes) {
  if (ViewerName(bytes) == bytes) {
    record[field] = bytes;
  } else {
    record[field + field::kBytes] = Hexadecimal(bytes);
  }
}

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

// Puts keys into the file's binary data.
class KeyStore {
 public:
  explicit KeyStore(BinaryData& data) : data_(data) {}

  template <typename KeyedController>
  json Record(KeyedController& controller, const Node& node, const std::string& what);

  // The same, and how it turns.
  json RotationRecord(RotationController& controller, const Node& node);

 private:
  int TicksOf(const Controller& controller);
  int AnglesOf(const EulerController& controller);

  int Add(const std::array<float, 3>&, const std::vector<float>& values) {
    return data_.AddKeyVectors(values);
  }
  int Add(const std::array<float, 4>&, const std::vector<float>& values) {
    return data_.AddKeyRotations(values);
  }

  BinaryData& data_;
  std::map<std::vector<std::uint32_t>, int> ticks_;  // accessors by the ticks in them
};

// That keys are finite has been seen to for the viewers.
template <typename KeyedController>
json KeyStore::Record(KeyedController& controller, const Node& node, const std::string& what) {
  const auto constant = Components(controller.Constant());
  if (!AreFinite(constant)) RefuseNotFinite(node, what + " without keys");
  json record = {{field::kClass, ClassRecord(controller.ClassID())}, {field::kConstant, constant}};
  if (controller.KeyCount() == 0) return record;
  std::vector<float> values;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    const auto value = Components(controller.KeyValue(key));
    values.insert(values.end(), value.begin(), value.end());
  }
  record[field::kTicks] = TicksOf(controller);
  record[field::kValues] = Add(constant, values);
  return record;
}

json KeyStore::RotationRecord(RotationController& controller, const Node& node) {
  json record = Record(controller, node, "rotation");
  record[field::kKind] = controller.KindName();
  const auto* euler = dynamic_cast<const EulerController*>(&controller);
  if (euler != nullptr && euler->KeyCount() > 0) record[field::kAngles] = AnglesOf(*euler);
  return record;
}

int KeyStore::TicksOf(const Controller& controller) {
  std::vector<std::uint32_t> words;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    words.push_back(static_cast<std::uint32_t>(controller.KeyTick(key)));
  }
  const auto known = ticks_.find(words);
  if (known != ticks_.end()) return known->second;
  const int accessor = data_.AddWords(words);
  ticks_.emplace(std::move(words), accessor);
  return accessor;
}

int KeyStore::AnglesOf(const EulerController& controller) {
  std::vector<std::uint32_t> words;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    const Vector& angles = controller.KeyAngles(key);
    for (const double angle : {angles.x, angles.y, angles.z}) {
      const auto bits = std::bit_cast<std::uint64_t>(angle);
      words.push_back(static_cast<std::uint32_t>(bits));
      words.push_back(static_cast<std::uint32_t>(bits >> 32U));
    }
  }
  return data_.AddWords(words);
}

json NodeRecord(const PlacedNode& placed, KeyStore& keys) {
  const Node& node = *placed.node;
  TransformController& transform = *node.Transform();
  json record = CommonRecord(node);
  record[field::kParent] = placed.parent;
  record[field::kObject] = ObjectRecord(node);
  record[field::kTransformClass] = ClassRecord(transform.ClassID());
  record[field::kPosition] = keys.Record(transform.Position(), node, "position");
  record[field::kRotation] = keys.RotationRecord(transform.Rotation(), node);
  record[field::kScale] = keys.Record(transform.Scale(), node, "scale");
  return record;
}

json SelectionRecord(const Scene& scene, const NodeTree& tree) {
  std::unordered_map<const Node*, std::size_t> indices;
  for (std::size_t i = 0; i < tree.size(); ++i) indices.emplace(tree[i].node, i);
  json record = json::array();
  for (const Node* node : scene.Selection()) record.push_back(indices.at(node));
  return record;
}

json SceneRecord(const Scene& scene, const NodeTree& tree, BinaryData& data) {
  const AnimationState& animation = scene.Animation();
  KeyStore keys(data);
  json nodes = json::array();
  for (const PlacedNode& placed : tree) nodes.push_back(NodeRecord(placed, keys));
  return {{field::kFrameRate, animation.FrameRate()},
          {field::kRange, {animation.Range().Start(), animation.Range().End()}},
          {field::kTime, animation.Time()},
          {field::kMillimetersPerUnit, scene.MillimetersPerUnit()},
          {field::kAnimateMode, ModeRecord(animation.AnimateMode())},
          {field::kSetKeyMode, ModeRecord(animation.SetKeyMode())},
          {field::kSelection, SelectionRecord(scene, tree)},
          {field::kRoot, CommonRecord(scene.Root())},
          {field::kNodes, std::move(nodes)}};
}

}  // namespace

void KeepScene(const Scene& scene, const NodeTree& tree, BinaryData& data, tinygltf::Model& model) {
  const int view = data.AddText(SceneRecord(scene, tree, data).dump());
  tinygltf::Value::Object extension;
  extension.emplace(field::kVersion, tinygltf::Value(kExtensionVersion));
  extension.emplace(field::kScene, tinygltf::Value(view));
  model.extensions.emplace(kExtensionName, tinygltf::Value(std::move(extension)));
  model.extensionsUsed.emplace_back(kExtensionName);
}

}  // namespace host::gltf
