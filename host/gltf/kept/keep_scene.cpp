#include <array>
#include <cstddef>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>

#include "host/animation/euler_controller.h"
#include "host/gltf/kept/kept_fields.h"
#include "host/gltf/kept/kept_scene.h"
#include "host/gltf/kept/kept_values.h"
#include "host/gltf/kept/scene_records.h"

namespace host::gltf {

namespace {

using nlohmann::json;

// --- Keys, controller by controller. That they are finite has been seen to for the viewers. ---

template <typename KeyedController>
void AppendValues(const KeyedController& controller, Output& output) {
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    output.AppendNumbers(Components(controller.KeyValue(key)));
  }
}

void AppendVectors(const TransformController& transform, Output& output) {
  AppendValues(transform.Position(), output);
  AppendValues(transform.Scale(), output);
}

void AppendRotations(const TransformController& transform, Output& output) {
  AppendValues(transform.Rotation(), output);
}

void AppendAngles(const TransformController& transform, Output& output) {
  const auto* euler = dynamic_cast<const EulerController*>(&transform.Rotation());
  if (euler == nullptr) return;
  for (std::size_t key = 0; key < euler->KeyCount(); ++key) {
    const Vector& angles = euler->KeyAngles(key);
    output.AppendNumbers(std::array<double, 3>{angles.x, angles.y, angles.z});
  }
}

// Keeps the extension of a file, and what belongs to it in the file's data. `scene` and `tree`
// outlive the data.
class Keeper {
 public:
  Keeper(const Scene& scene, const NodeTree& tree, BinaryData& data)
      : scene_(scene), tree_(tree), data_(data) {}

  json Extension();

 private:
  using Append = void (*)(const TransformController& transform, Output& output);

  // Keeps `count` elements, which `append` has of all nodes.
  void AddKeys(const char* name, std::uint64_t count, std::size_t bytes, const ElementForm& form,
               Append append);

  // Adds an accessor for all numbers of the view that was begun last.
  void AddAccessor(const char* name, const ElementForm& form);

  // A line for the scene, and one for each node. Returns the ticks that they refer to.
  std::vector<std::uint32_t> AddRecord();

  const Scene& scene_;
  const NodeTree& tree_;
  BinaryData& data_;
  json extension_;
};

json Keeper::Extension() {
  extension_ = {{field::kVersion, kExtensionVersion}};
  std::vector<std::uint32_t> ticks = AddRecord();
  data_.BeginView();
  data_.Append(NumbersOf(std::move(ticks)));
  AddAccessor(field::kTicks, kWordForm);
  const KeyCounts keys = KeptKeys(tree_);
  AddKeys(field::kVectors, keys.vectors, 3 * sizeof(float), kThreeNumbersForm, AppendVectors);
  AddKeys(field::kRotations, keys.rotations, 4 * sizeof(float), kFourNumbersForm, AppendRotations);
  AddKeys(field::kAngles, keys.angles, 3 * sizeof(double), kWordForm, AppendAngles);
  return std::move(extension_);
}

void Keeper::AddKeys(const char* name, std::uint64_t count, std::size_t bytes,
                     const ElementForm& form, Append append) {
  data_.BeginView();
  data_.Append({count * bytes, [&tree = tree_, append](Output& output) {
                  for (const PlacedNode& placed : tree) append(*placed.node->Transform(), output);
                }});
  AddAccessor(name, form);
}

void Keeper::AddAccessor(const char* name, const ElementForm& form) {
  if (const auto accessor = data_.AddViewAccessor(form)) extension_[name] = *accessor;
}

// The lines are made twice, which takes less than to keep them.
std::vector<std::uint32_t> Keeper::AddRecord() {
  RequireFiniteRecord(scene_.Root());
  for (const PlacedNode& placed : tree_) RequireFiniteRecord(*placed.node);

  const auto ticks = std::make_shared<TickLists>();
  const auto append = [ticks, &scene = scene_, &tree = tree_](Output& output) {
    std::string line;
    AppendSceneRecord(scene, tree, line);
    output.Append(line += '\n');
    for (const PlacedNode& placed : tree) {
      line.clear();
      AppendNodeRecord(placed, *ticks, line);
      output.Append(line += '\n');
    }
  };
  extension_[field::kScene] = data_.BeginView();
  data_.Append({SizeOf(append), append});
  return ticks->All();
}

}  // namespace

void KeepScene(const Scene& scene, const NodeTree& tree, Document& document) {
  document.extensions[kExtensionName] = Keeper(scene, tree, document.data).Extension();
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
