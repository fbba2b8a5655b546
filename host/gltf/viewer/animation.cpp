#include "host/gltf/viewer/animation.h"

#include <cstddef>
#include <map>
#include <vector>

#include "host/gltf/file/refusal.h"

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

class AnimationBuilder {
 public:
  AnimationBuilder(const ViewerSpace& space, const ViewerTime& time, Document& document)
      : space_(space), time_(time), document_(document), data_(document.data) {}

  // Adds the keys of `node`, which has that index in the file.
  void AddNode(const Node& node, int index);

 private:
  // The keys of `controller`, the one of the node's `what`, as `convert` makes them the viewer's.
  template <typename KeyedController, typename Convert>
  ViewerKeys KeysOf(const KeyedController& controller, const Node& node, const char* what,
                    const Convert& convert) const;

  void AddChannel(const std::vector<float>& seconds, int output, int node, const char* path);

  const ViewerSpace& space_;
  const ViewerTime& time_;
  Document& document_;
  BinaryData& data_;
  std::map<std::vector<float>, int> inputs_;  // accessors by the times in them
};

void AnimationBuilder::AddNode(const Node& node, int index) {
  const TransformController& transform = *node.Transform();
  const ViewerKeys positions = KeysOf(transform.Position(), node, "position",
                                      [&](const Point3& value) { return space_.Position(value); });
  if (!positions.seconds.empty()) {
    AddChannel(positions.seconds, data_.AddKeyVectors(positions.values), index, "translation");
  }
  ViewerKeys rotations = KeysOf(transform.Rotation(), node, "rotation", ViewerSpace::Rotation);
  if (!rotations.seconds.empty()) {
    TakeNearerSigns(rotations.values);
    AddChannel(rotations.seconds, data_.AddKeyRotations(rotations.values), index, "rotation");
  }
  const ViewerKeys scales = KeysOf(transform.Scale(), node, "scale", ViewerSpace::Scale);
  if (!scales.seconds.empty()) {
    AddChannel(scales.seconds, data_.AddKeyVectors(scales.values), index, "scale");
  }
}

template <typename KeyedController, typename Convert>
ViewerKeys AnimationBuilder::KeysOf(const KeyedController& controller, const Node& node,
                                    const char* what, const Convert& convert) const {
  ViewerKeys keys;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    const TimeValue tick = controller.KeyTick(key);
    const auto value = Rounded(convert(controller.KeyValue(key)));
    RequireFinite(value, node, what, tick);
    const float second = time_.Second(tick);
    if (!keys.seconds.empty() && keys.seconds.back() == second) continue;
    keys.seconds.push_back(second);
    keys.values.insert(keys.values.end(), value.begin(), value.end());
  }
  return keys;
}

void AnimationBuilder::AddChannel(const std::vector<float>& seconds, int output, int node,
                                  const char* path) {
  const auto known = inputs_.find(seconds);
  const int input = known != inputs_.end() ? known->second : data_.AddKeyTimes(seconds);
  inputs_.try_emplace(seconds, input);

  const int sampler = document_.samplers.Add({{"input", input}, {"output", output}});
  document_.channels.Add({{"sampler", sampler}, {"target", {{"node", node}, {"path", path}}}});
}

}  // namespace

void AddAnimation(const NodeTree& tree, const ViewerSpace& space, const ViewerTime& time,
                  Document& document) {
  AnimationBuilder builder(space, time, document);
  for (std::size_t index = 0; index < tree.size(); ++index) {
    builder.AddNode(*tree[index].node, static_cast<int>(index));
  }
}

}  // namespace host::gltf
