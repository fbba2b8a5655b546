#include "host/gltf/file/refusal.h"

#include <string>

#include "host/gltf/file/names.h"

namespace host::gltf {

void RefuseNotFinite(const Node& node, const std::string& what) {
  throw Refusal("Node \"" + ViewerName(node.Name()) + "\" cannot be saved: its " + what +
                kIsNotFinite);
}

void RefuseNotFinite(const Node& node, const char* what, TimeValue time) {
  RefuseNotFinite(node, std::string(what) + " at tick " + std::to_string(time));
}

}  // namespace host::gltf
