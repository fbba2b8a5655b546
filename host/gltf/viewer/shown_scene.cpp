#include "host/gltf/viewer/shown_scene.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "host/gltf/file/json_text.h"
#include "host/gltf/file/names.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/viewer/animation.h"
#include "host/gltf/viewer/materials.h"
#include "host/gltf/viewer/object_meshes.h"
#include "host/gltf/viewer/shown_position.h"
#include "host/gltf/viewer/skins.h"
#include "host/gltf/viewer/viewer_space.h"
#include "host/gltf/viewer/viewer_time.h"

namespace host::gltf {

namespace {

constexpr std::array<double, 3> kHidden = {0.0, 0.0, 0.0};

// The nodes below each node of a tree, in their order: the first of them, and of each the next one
// of the same parent; -1 where there is none.
class ChildrenIn {
 public:
  explicit ChildrenIn(const NodeTree& tree) : first_(tree.size(), -1), next_(tree.size(), -1) {
    for (std::size_t index = tree.size(); index-- > 0;) {
      if (tree[index].parent == -1) continue;
      next_[index] = std::exchange(first_[static_cast<std::size_t>(tree[index].parent)],
                                   static_cast<int>(index));
    }
  }

  bool Has(std::size_t index) const { return first_[index] != -1; }

  // Appends the indices of those below the node `index` to `text`.
  void AppendOf(std::size_t index, std::string& text) const {
    char separator = '[';
    for (int child = first_[index]; child != -1; child = next_[static_cast<std::size_t>(child)]) {
      text += std::exchange(separator, ',');
      AppendValue(text, child);
    }
    text += ']';
  }

 private:
  std::vector<int> first_;
  std::vector<int> next_;
};

// What a viewer is shown of a node at one time.
struct ViewerTransform {
  std::array<double, 3> position;
  std::array<double, 4> rotation;
  std::array<double, 3> scale;
};

ViewerTransform TransformOf(const Node& node, const ViewerSpace& space, TimeValue time) {
  const TransformController& transform = *node.Transform();
  const ShownPosition shown(node);
  const auto position = space.Position(shown.PlaceAt(time));
  const auto rotation = ViewerSpace::Rotation(transform.Rotation().ValueAt(time));
  const auto scale = ViewerSpace::Scale(transform.Scale().ValueAt(time));
  RequireFinite(position, node, "position", time);
  RequireFinite(rotation, node, "rotation", time);
  RequireFinite(scale, node, "scale", time);
  return {position, rotation, shown.IsHiddenAt(time) ? kHidden : scale};
}

// Adds the nodes of `tree`, as they stand at `time` (ticks), to `document`; `meshes` are the
// indices of their meshes, -1 for none. Throws a Refusal when a transform is not finite.
void AddNodes(const NodeTree& tree, const ViewerSpace& space, TimeValue time,
              const std::vector<int>& meshes, Document& document) {
  const ChildrenIn children(tree);
  for (std::size_t index = 0; index < tree.size(); ++index) {
    const Node& node = *tree[index].node;
    const ViewerTransform transform = TransformOf(node, space, time);
    const int added = document.nodes.AddText([&](std::string& text) {
      JsonObject record(text);
      if (children.Has(index)) children.AppendOf(index, record.Member("children"));
      if (meshes[index] != -1) record.Add("mesh", meshes[index]);
      record.Add("name", ViewerName(node.Name()));
      record.Add("rotation", transform.rotation);
      record.Add("scale", transform.scale);
      record.Add("translation", transform.position);
      record.End();
    });
    if (tree[index].parent == -1) document.roots.push_back(added);
  }
}

// What other programs may want to know of `recording`, so as to set their own time and units.
nlohmann::json ToldOf(const Recording& recording) {
  nlohmann::json told = {{"firstFrame", recording.first_frame},
                         {"source", ViewerName(recording.source)},
                         {"turnedFromZUp", recording.turned_up},
                         {"unit", ViewerName(recording.unit)}};
  if (recording.rate) {
    told["frameRate"] = {{"numerator", recording.rate->numerator},
                         {"denominator", recording.rate->denominator}};
  }
  return told;
}

}  // namespace

void ShowScene(const Scene& scene, const NodeTree& tree, Document& document) {
  assert(document.nodes.IsEmpty());
  const ViewerSpace space(scene.MillimetersPerUnit());
  const TimeValue time = scene.Animation().Time();
  if (scene.Recording()) document.recording = ToldOf(*scene.Recording());
  Materials materials(document.materials);
  AddAnimation(tree, space, ViewerTime(scene, tree), document);
  const std::vector<int> meshes = AddObjectMeshes(tree, space, time, materials, document);
  AddNodes(tree, space, time, meshes, document);
  AddSkins(tree, space, time, materials, document);
}

}  // namespace host::gltf
