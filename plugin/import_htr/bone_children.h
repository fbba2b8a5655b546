#pragma once

#include <string>
#include <unordered_map>

#include "sdk/core/node.h"

// The bones among the children of one node, by name.
namespace orvane {

class BoneChildren {
 public:
  // Lists the bones among the present children of `node`. Nodes stay the scene's and must stay in
  // it as long as they are looked up here.
  explicit BoneChildren(INode& node);

  // The first bone in the order of the children that has exactly that name; null when there is
  // none.
  INode* Find(const std::string& name) const;

 private:
  std::unordered_map<std::string, INode*> by_name_;
};

}  // namespace orvane
