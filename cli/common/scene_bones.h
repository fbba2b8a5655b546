#pragma once

#include "host/scene/node.h"

// The nodes of a scene that the plug-in takes for bones of a skeleton.

namespace cli {

// Whether the object of `node` is a bone.
[[nodiscard]] bool IsBone(const host::Node& node);

// The first bone among the children of `node`; null when there is none.
[[nodiscard]] const host::Node* FirstBoneChild(const host::Node& node);

}  // namespace cli
