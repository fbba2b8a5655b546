#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "host/animation/controller.h"
#include "host/gltf/file/node_tree.h"
#include "host/scene/scene.h"

// The records of a kept scene: a line of JSON for the scene and one for each node.
// docs/formats/gltf.md describes them.

namespace host::gltf {

// The ticks of all controllers; controllers that have the same share them. The writer owns it.
class TickLists {
 public:
  // Where those of `controller` begin.
  std::size_t FirstOf(const Controller& controller);

  const std::vector<std::uint32_t>& All() const { return all_; }

 private:
  std::vector<std::uint32_t> all_;
  std::map<std::vector<std::uint32_t>, std::size_t> firsts_;
};

// Throw a Refusal when a number in the record of a node, or of the scene's root, is not finite.
void RequireFiniteRecord(const Node& node);

// Append the record of `scene`, whose nodes are `tree`, or of one of them, to `text`.
// REQUIRES: the numbers in it are finite.
void AppendSceneRecord(const Scene& scene, const NodeTree& tree, std::string& text);
void AppendNodeRecord(const PlacedNode& placed, TickLists& ticks, std::string& text);

}  // namespace host::gltf
