#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "host/gltf/file/json_field.h"
#include "host/gltf/joints/placement.h"

// The nodes of a file of any maker, and how they stand when nothing moves them.

namespace host::gltf {

inline constexpr std::size_t kNoNode = static_cast<std::size_t>(-1);

// A turn as glTF has it: x, y, z, w, of any length but 0.
using Turn = std::array<double, 4>;

// What moves a node, in this order: scale, turn, place.
struct NodeParts {
  Triple translation = {0, 0, 0};
  Turn rotation = {0, 0, 0, 1};
  Triple scale = {1, 1, 1};
};

[[nodiscard]] Transform TransformOf(const NodeParts& parts);

struct FileNode {
  std::string name;              // may be empty
  std::size_t parent = kNoNode;  // index of a node
  std::vector<std::size_t> children;
  NodeParts parts;
  std::optional<Transform> matrix;  // in the place of the parts

  [[nodiscard]] Transform Local() const { return matrix ? *matrix : TransformOf(parts); }
};

// The nodes of `document`. Throws a Refusal when they are damaged, or when one hangs from itself or
// from two others.
[[nodiscard]] std::vector<FileNode> FileNodesIn(const JsonField& document);

// All of `nodes`: each behind its parent, and siblings in their order.
[[nodiscard]] std::vector<std::size_t> DepthFirst(const std::vector<FileNode>& nodes);

}  // namespace host::gltf
