#pragma once

#include <unordered_set>
#include <vector>

#include "platform/export.h"

// Which nodes are selected. Whether one may be is for the scene to say, which owns it and the
// nodes.

namespace host {

class Node;

// The selected nodes, in the order of their selection.
class SKELDER_API NodeSelection {
 public:
  // Appends `node` unless it is selected.
  void Add(Node& node);

  void Remove(const Node& node);
  void Clear();

  const std::vector<Node*>& Nodes() const { return nodes_; }

 private:
  std::vector<Node*> nodes_;
  std::unordered_set<const Node*> members_;
};

}  // namespace host
