#include "host/gltf/file/node_tree.h"

namespace host::gltf {

namespace {

// Puts the children of `parent` on the stack, the first of them on top.
void PushChildren(const Node& parent, int parent_index, int top, NodeTree& stack) {
  const std::vector<Node*>& children = parent.Children();
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    stack.push_back({*child, parent_index, top});
  }
}

}  // namespace

NodeTree NodeTreeOf(const Scene& scene) {
  NodeTree tree;
  tree.reserve(scene.NodeCount());
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

}  // namespace host::gltf
