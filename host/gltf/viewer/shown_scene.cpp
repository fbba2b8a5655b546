#include "host/gltf/viewer/shown_scene.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <vector>

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

nlohmann::json ViewerNode(const Node& node, const ViewerSpace& space, TimeValue time) {
  const TransformController& transform = *node.Transform();
  const ShownPosition shown(node);
  const auto position = space.Position(shown.PlaceAt(time));
  const auto rotation = ViewerSpace::Rotation(transform.Rotation().ValueAt(time));
  const auto scale = ViewerSpace::Scale(transform.Scale().ValueAt(time));
  RequireFinite(position, node, "position", time);
  RequireFinite(rotation, node, "rotation", time);
  RequireFinite(scale, node, "scale", time);
  return {{"name", ViewerName(node.Name())},
          {"translation", position},
          {"rotation", rotation},
          {"scale", shown.IsHiddenAt(time) ? kHidden : scale}};
}

// The indices of the nodes below each node of `tree`.
std::vector<std::vector<int>> ChildrenIn(const NodeTree& tree) {
  std::vector<std::vector<int>> children(tree.size());
  for (std::size_t index = 0; index < tree.size(); ++index) {
    if (tree[index].parent == -1) continue;
    children[static_cast<std::size_t>(tree[index].parent)].push_back(static_cast<int>(index));
  }
  return children;
}

// Adds the nodes of `tree`, as they stand at `time` (ticks), to `document`; `meshes` are the
// indices of their meshes, -1 for none. Throws a Refusal when a transform is not finite.
void AddNodes(const NodeTree& tree, const ViewerSpace& space, TimeValue time,
              const std::vector<int>& meshes, Document& document) {
  const std::vector<std::vector<int>> children = ChildrenIn(tree);
  for (std::size_t index = 0; index < tree.size(); ++index) {
    nlohmann::json node = ViewerNode(*tree[index].node, space, time);
    if (meshes[index] != -1) node["mesh"] = meshes[index];
    if (!children[index].empty()) node["children"] = children[index];
    const int added = document.nodes.Add(node);
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
