#include "host/gltf/refusal.h"

#include <string>

#include "host/gltf/names.h"

namespace host::gltf {

void RefuseNotFinite(const Node& node, const char* what, TimeValue time) {
  throw Refusal("Node \"" + ViewerName(node.Name()) + "\" cannot be saved: its " + what +
                " at tick " + std::to_string(time) + " is not finite.");
}

}  // namespace host::gltf
