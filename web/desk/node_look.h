#pragma once

#include "host/scene/node.h"

// What the page shows a node as.

namespace web {

enum class NodeKind { kGroup, kBone, kMarker };

struct NodeLook {
  NodeKind kind = NodeKind::kGroup;
  double size = 0.0;  // in the scene's units: a bone's length, a marker's radius
};

[[nodiscard]] NodeLook LookOf(const host::Node& node);

}  // namespace web
