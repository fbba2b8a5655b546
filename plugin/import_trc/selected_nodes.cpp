#include "plugin/import_trc/selected_nodes.h"

namespace orvane {

SelectedNodes::SelectedNodes(Interface& interface) {
  const int count = interface.GetSelNodeCount();
  for (int i = 0; i < count; ++i) {
    INode* node = interface.GetSelNode(i);
    if (node == nullptr) continue;
    last_ = node;
    nodes_.Add(*node);
    const int children = node->NumberOfChildren();
    for (int child = 0; child < children; ++child) {
      INode* child_node = node->GetChildNode(child);
      if (child_node != nullptr) nodes_.Add(*child_node);
    }
  }
}

}  // namespace orvane
