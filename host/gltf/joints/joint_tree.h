#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/gltf/joints/file_nodes.h"

// Which nodes of a file are joints of its skins, and how they hang together.

namespace host::gltf {

// A node that is a joint, or that one hangs from. Indices are those of the tree, unless they are
// said to be a node's.
struct TreeNode {
  std::size_t node;             // index in the file
  std::size_t above = kNoNode;  // the tree's node that it hangs from
  bool is_joint = false;
  std::size_t parent = kNoNode;  // of a joint: the next one above it
  std::size_t top = kNoNode;     // of a joint: the topmost one above it, or itself
};

// Each behind what it hangs from, siblings in their order.
using JointTree = std::vector<TreeNode>;

// Throws a Refusal when the skins of `document`, whose nodes are `nodes`, are damaged. Empty when
// no skin has a joint.
[[nodiscard]] JointTree JointTreeOf(const JsonField& document, const std::vector<FileNode>& nodes);

}  // namespace host::gltf
