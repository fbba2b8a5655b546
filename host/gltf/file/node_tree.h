#pragma once

#include <vector>

#include "host/scene/scene.h"

// The order in which a scene's nodes stand in a file, for both halves of it. The scene owns the
// nodes.

namespace host::gltf {

// A node and its place. Indices are those of the tree, and of the nodes in the file.
struct PlacedNode {
  const Node* node;
  int parent;  // -1 under the scene's root
  int top;     // the node under the scene's root that this one hangs below, or itself
};

// All nodes of a scene but its root: each before its children, siblings in their order.
using NodeTree = std::vector<PlacedNode>;

NodeTree NodeTreeOf(const Scene& scene);

}  // namespace host::gltf
