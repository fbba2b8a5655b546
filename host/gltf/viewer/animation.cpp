#include "host/gltf/viewer/animation.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/gltf/file/json_text.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/viewer/shown_position.h"

namespace host::gltf {

namespace {

// The keys of a controller as a viewer has them.
struct ViewerKeys {
  std::vector<float> seconds;
  std::vector<float> values;  // all components of the first key, then those of the second, ...
};

// Of the two quaternions of each rotation takes the one nearer to the rotation before, so that
// viewers turn the shorter way.
void TakeNearerSigns(std::vector<float>& rotations) {
  for (std::size_t i = 4; i < rotations.size(); i += 4) {
    float* rotation = &rotations[i];
    const float* previous = rotation - 4;
    const float dot = previous[0] * rotation[0] + previous[1] * rotation[1] +
                      previous[2] * rotation[2] + previous[3] * rotation[3];
    if (dot >= 0.0F) continue;
    for (int component = 0; component < 4; ++component) rotation[component] *= -1.0F;
  }
}

// On how many seconds the keys of `controller` fall.
std::uint64_t SecondsOf(const Controller& controller, const ViewerTime& time) {
  std::uint64_t seconds = 0;
  std::optional<float> last;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    const float second = time.Second(controller.KeyTick(key));
    if (last != second) ++seconds;
    last = second;
  }
  return seconds;
}

class AnimationBuilder {
 public:
  AnimationBuilder(const ViewerSpace& space, const ViewerTime& time, Document& document)
      : space_(space), time_(time), document_(document), data_(document.data) {}

  // Adds the keys of `node`, which has that index in the file.
  void AddNode(const Node& node, int index);

 private:
  void AddPosition(const Node& node, int index);
  void AddRotation(const Node& node, int index);
  void AddScale(const Node& node, int index);

  // Hides the node of `position` where it was not measured.
  void AddVisibility(const Node& node, const ShownPosition& position, int index);

  // The keys of `controller`, the one of the node's `what`, as `convert` makes them the viewer's.
  // Key number n gets the value of number `shown`(n).
  template <typename KeyedController, typename Convert, typename Shown>
  ViewerKeys KeysOf(const KeyedController& controller, const Node& node, const char* what,
                    const Convert& convert, const Shown& shown) const;

  void AddChannel(const std::vector<float>& seconds, int output, int node, const char* path,
                  const char* interpolation = nullptr);

  const ViewerSpace& space_;
  const ViewerTime& time_;
  Document& document_;
  BinaryData& data_;
  std::map<std::vector<float>, int> inputs_;  // accessors by the times in them
};

constexpr auto kAsKeyed = [](std::size_t key) { return key; };

void AnimationBuilder::AddNode(const Node& node, int index) {
  AddPosition(node, index);
  AddRotation(node, index);
  AddScale(node, index);
}

void AnimationBuilder::AddPosition(const Node& node, int index) {
  const ShownPosition shown(node);
  const ViewerKeys keys = KeysOf(
      node.Transform()->Position(), node, "position",
      [&](const Point3& value) { return space_.Position(value); },
      [&](std::size_t key) { return shown.PlaceAtKey(key); });
  if (!shown.IsAnimated()) return;
  AddChannel(keys.seconds, data_.AddKeyVectors(keys.values), index, "translation");
  AddVisibility(node, shown, index);
}

void AnimationBuilder::AddVisibility(const Node& node, const ShownPosition& position, int index) {
  const TransformController& transform = *node.Transform();
  const auto visible = Rounded(ViewerSpace::Scale(transform.Scale().Constant()));
  ViewerKeys keys;
  for (const std::size_t change : position.Changes()) {
    // A step that is rounded to a later time would come a frame late for who asks at the exact one.
    const float second = std::nextafter(time_.Second(transform.Position().KeyTick(change)), 0.0F);
    // What is too short for single precision is not seen, and what follows it is.
    if (!keys.seconds.empty() && keys.seconds.back() == second) {
      keys.seconds.pop_back();
      keys.values.resize(keys.values.size() - visible.size());
    }
    keys.seconds.push_back(second);
    for (const float factor : visible) {
      keys.values.push_back(position.IsHiddenAtKey(change) ? 0.0F : factor);
    }
  }
  if (keys.seconds.empty()) return;
  AddChannel(keys.seconds, data_.AddKeyVectors(keys.values), index, "scale", "STEP");
}

void AnimationBuilder::AddRotation(const Node& node, int index) {
  ViewerKeys keys =
      KeysOf(node.Transform()->Rotation(), node, "rotation", ViewerSpace::Rotation, kAsKeyed);
  if (keys.seconds.empty()) return;
  TakeNearerSigns(keys.values);
  AddChannel(keys.seconds, data_.AddKeyRotations(keys.values), index, "rotation");
}

void AnimationBuilder::AddScale(const Node& node, int index) {
  const ViewerKeys keys =
      KeysOf(node.Transform()->Scale(), node, "scale", ViewerSpace::Scale, kAsKeyed);
  if (keys.seconds.empty()) return;
  AddChannel(keys.seconds, data_.AddKeyVectors(keys.values), index, "scale");
}

template <typename KeyedController, typename Convert, typename Shown>
ViewerKeys AnimationBuilder::KeysOf(const KeyedController& controller, const Node& node,
                                    const char* what, const Convert& convert,
                                    const Shown& shown) const {
  ViewerKeys keys;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    const TimeValue tick = controller.KeyTick(key);
    auto value = Rounded(convert(controller.KeyValue(key)));
    RequireFinite(value, node, what, tick);
    const float second = time_.Second(tick);
    if (!keys.seconds.empty() && keys.seconds.back() == second) continue;
    keys.seconds.push_back(second);
    const std::size_t shown_key = shown(key);
    if (shown_key != key) value = Rounded(convert(controller.KeyValue(shown_key)));
    keys.values.insert(keys.values.end(), value.begin(), value.end());
  }
  return keys;
}

void AnimationBuilder::AddChannel(const std::vector<float>& seconds, int output, int node,
                                  const char* path, const char* interpolation) {
  const auto known = inputs_.find(seconds);
  const int input = known != inputs_.end() ? known->second : data_.AddKeyTimes(seconds);
  inputs_.try_emplace(seconds, input);

  const int sampler = document_.samplers.AddText([&](std::string& text) {
    JsonObject record(text);
    record.Add("input", input);
    if (interpolation != nullptr) record.Add("interpolation", interpolation);
    record.Add("output", output);
    record.End();
  });
  document_.channels.AddText([&](std::string& text) {
    JsonObject channel(text);
    channel.Add("sampler", sampler);
    JsonObject target(channel.Member("target"));
    target.Add("node", node);
    target.Add("path", path);
    target.End();
    channel.End();
  });
}

}  // namespace

void AddAnimation(const NodeTree& tree, const ViewerSpace& space, const ViewerTime& time,
                  Document& document) {
  AnimationBuilder builder(space, time, document);
  for (std::size_t index = 0; index < tree.size(); ++index) {
    builder.AddNode(*tree[index].node, static_cast<int>(index));
  }
}

KeyCounts ShownKeys(const NodeTree& tree, const ViewerTime& time) {
  KeyCounts keys;
  for (const PlacedNode& placed : tree) {
    const TransformController& transform = *placed.node->Transform();
    if (ShownPosition(*placed.node).IsAnimated()) {
      keys.vectors += SecondsOf(transform.Position(), time);
    }
    keys.vectors += SecondsOf(transform.Scale(), time);
    keys.rotations += SecondsOf(transform.Rotation(), time);
  }
  return keys;
}

}  // namespace host::gltf
