#include "host/scene/node_selection.h"

namespace host {

void NodeSelection::Add(Node& node) {
  if (members_.insert(&node).second) nodes_.push_back(&node);
}

void NodeSelection::Remove(const Node& node) {
  if (members_.erase(&node) > 0) std::erase(nodes_, &node);
}

void NodeSelection::Clear() {
  nodes_.clear();
  members_.clear();
}

}  // namespace host
