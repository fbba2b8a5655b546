#pragma once

#include <string>

#include "plugin/exchange/nodes_by_name.h"
#include "sdk/core/interface.h"

// The objects of the scene that marker motion may be applied to: the selected nodes and their
// children.
namespace orvane {

class SelectedNodes {
 public:
  // Takes the selection of `interface` as it is now. Nodes stay the scene's and must stay in it as
  // long as they are looked up here.
  explicit SelectedNodes(Interface& interface);

  // The first node of exactly that name, in constant time: each selected node comes before its
  // children and these before the next selected node. Null when there is none.
  INode* Find(const std::string& name) const { return nodes_.Find(name); }

  // The last selected node; null when nothing is selected.
  INode* Last() const { return last_; }

 private:
  NodesByName nodes_;
  INode* last_ = nullptr;
};

}  // namespace orvane
