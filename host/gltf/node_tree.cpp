#include "host/gltf/node_tree.h"

#include <array>
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

template <std::size_t kSize>
std::vector<double> Finite(const std::array<double, kSize>& numbers, const Node& node,
                           const char* what, TimeValue time) {
  RequireFinite(numbers, node, what, time);
  return {numbers.begin(), numbers.end()};
}

tinygltf::Node ViewerNode(const Node& node, const ViewerSpace& space, TimeValue time) {
  const TransformController& transform = *node.Transform();
  const auto position = space.Position(transform.Position().ValueAt(time));
  const auto rotation = ViewerSpace::Rotation(transform.Rotation().ValueAt(time));
  const auto scale = ViewerSpace::Scale(transform.Scale().ValueAt(time));
  tinygltf::Node viewer_node;
  viewer_node.name = ViewerName(node.Name());
  viewer_node.translation = Finite(position, node, "position", time);
  viewer_node.rotation = Finite(rotation, node, "rotation", time);
  viewer_node.scale = Finite(scale, node, "scale", time);
  return viewer_node;
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
              tinygltf::Model& model) {
  model.nodes.reserve(tree.size());
  for (const PlacedNode& placed : tree) {
    const int index = static_cast<int>(model.nodes.size());
    model.nodes.push_back(ViewerNode(*placed.node, space, time));
    std::vector<int>& siblings =
        placed.parent == -1 ? model.scenes.front().nodes
                            : model.nodes[static_cast<std::size_t>(placed.parent)].children;
    siblings.push_back(index);
  }
}

}  // namespace host::gltf
