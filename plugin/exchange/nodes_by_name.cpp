#include "plugin/exchange/nodes_by_name.h"

namespace orvane {

void NodesByName::Add(INode& node) { nodes_.emplace(node.GetName(), &node); }

INode* NodesByName::Find(const std::string& name) const {
  const auto found = nodes_.find(name);
  return found == nodes_.end() ? nullptr : found->second;
}

}  // namespace orvane
