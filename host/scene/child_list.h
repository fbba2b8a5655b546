#pragma once

#include <cstddef>
#include <vector>

#include "platform/export.h"

// The order of a node's children. Their parents and transforms are the nodes' own business. The
// parent owns the list, and the scene the children.

namespace host {

class Node;

// The children of a node in their order. A child that leaves only empties its place, which it
// knows; the list is closed up when it is next read, so that moving any number of children to
// another node takes time in proportion to their number.
class SKELDER_API ChildList {
 public:
  // Appends `child`, which is in no list.
  void Add(Node& child);

  // Takes `child` out of this list, which it is in.
  void Remove(Node& child);

  // The children; valid until the list changes.
  const std::vector<Node*>& All() const;

  std::size_t Size() const { return places_.size() - empty_places_; }

 private:
  // Closes up the list from the first empty place on.
  void CloseUp() const;

  mutable std::vector<Node*> places_;
  mutable std::size_t first_empty_ = 0;
  mutable std::size_t empty_places_ = 0;
};

}  // namespace host
