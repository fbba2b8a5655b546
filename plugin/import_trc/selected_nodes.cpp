#include "plugin/import_trc/selected_nodes.h"

namespace orvane {

SelectedNodes::SelectedNodes(Interface& interface) {
  const int count = interface.GetSelNodeCount();
  for (int i = 0; i < count; ++i) {
    INode* node = interface.GetSelNode(i);
    if (node == nullptr) continue;
    last_ = node;
    Add(*node);
    const int children = node->NumberOfChildren();
    for (int child = 0; child < children; ++child) {
      INode* child_node = node->GetChildNode(child);
      if (child_node != nullptr) Add(*child_node);
    }
  }
}

INode* SelectedNodes::Find(const std::string& name) const {
  const auto found = by_name_.find(name);
  return found == by_name_.end() ? nullptr : found->second;
}

// The first of several nodes of one name stays.
void SelectedNodes::Add(INode& node) { by_name_.emplace(node.GetName(), &node); }

}  // namespace orvane
