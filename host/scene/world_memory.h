#pragma once

#include <cstddef>
#include <list>
#include <unordered_map>

#include "platform/export.h"
#include "sdk/core/types.h"
#include "sdk/geom/matrix3.h"

// World transforms that were computed before. When they are out of date is for the nodes to say.
// The scene owns it.

namespace host {

class Node;

// The world transforms that the nodes of one scene had at other times than the last one asked for.
// With it, following one node after the other through time costs each of them its own part only,
// and not that of all nodes above it. It is bounded: the nodes that were asked for the longest time
// ago are forgotten first.
class SKELDER_API WorldMemory {
 public:
  // Enough for a node and its parent over half a million frames.
  static constexpr std::size_t kMostTransforms = std::size_t{1} << 20U;

  explicit WorldMemory(std::size_t most_transforms = kMostTransforms) : most_(most_transforms) {}

  // What was kept of `node` at `time`; null when there is nothing. Valid until the next Keep or
  // Forget.
  const Matrix3* Find(const Node& node, TimeValue time);

  void Keep(const Node& node, TimeValue time, const Matrix3& transform);

  // Forgets all times of `node`.
  void Forget(const Node& node);

  // How many transforms are kept.
  std::size_t Size() const { return size_; }

 private:
  using NodesByUse = std::list<const Node*>;

  struct Track {
    std::unordered_map<TimeValue, Matrix3> transforms;
    NodesByUse::iterator place;
  };

  void MarkUsed(const Track& track) { by_use_.splice(by_use_.begin(), by_use_, track.place); }

  std::size_t most_;
  std::size_t size_ = 0;
  std::unordered_map<const Node*, Track> tracks_;
  NodesByUse by_use_;  // the last one used first
};

}  // namespace host
