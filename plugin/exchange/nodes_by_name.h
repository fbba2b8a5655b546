#pragma once

#include <string>
#include <unordered_map>

#include "sdk/core/node.h"

// Nodes of the scene to be looked up by their names, in constant time.
namespace orvane {

class NodesByName {
 public:
  // Lists `node` under its present name, unless another has that already. It stays the scene's and
  // must stay in it as long as it may be looked up here.
  void Add(INode& node);

  // The first node that was listed under exactly that name; null when there is none.
  INode* Find(const std::string& name) const;

 private:
  std::unordered_map<std::string, INode*> nodes_;
};

}  // namespace orvane
