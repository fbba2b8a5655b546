#include "host/gltf/node_tree.h"

#include <cstddef>

#include "host/gltf/names.h"
#include "host/gltf/refusal.h"

namespace host::gltf {

namespace {

// Puts the children of `parent` on the stack, the first of them on top.
void PushChildren(const Node& parent, int parent_index, int top, NodeTree& stack) {
  const std::vector<Node*>& children = parent.Children();
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    stack.push_back({*child, parent_index, top});
  }
}

nlohmann::json ViewerNode(const Node& node, const ViewerSpace& space, TimeValue time) {
  const TransformController& transform = *node.Transform();
  const auto position = space.Position(transform.Position().ValueAt(time));
  const auto rotation = ViewerSpace::Rotation(transform.Rotation().ValueAt(time));
  const auto scale = ViewerSpace::Scale(transform.Scale().ValueAt(time));
  RequireFinite(position, node, "position", time);
  RequireFinite(rotation, node, "rotation", time);
  RequireFinite(scale, node, "scale", time);
  return {{"name", ViewerName(node.Name())},
          {"translation", position},
          {"rotation", rotation},
          {"scale", scale}};
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

}  // namespace

NodeTree NodeTreeOf(const Scene& scene) {
  NodeTree tree;
  NodeTree stack;
  PushChildren(scene.Root(), -1, -1, stack);
  while (!stack.empty()) {
    PlacedNode placed = stack.back();
    stack.pop_back();
    const int index = static_cast<int>(tree.size());
    if (placed.parent == -1) placed.top = index;
    tree.push_back(placed);
    PushChildren(*placed.node, index, placed.top, stack);
  }
  return tree;
}

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

}  // namespace host::gltf
