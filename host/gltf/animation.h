#pragma once

#include <tiny_gltf.h>

#include <string>

#include "host/gltf/binary_data.h"
#include "host/gltf/node_tree.h"
#include "host/gltf/viewer_space.h"

namespace host::gltf {

// Adds the keys of all controllers in `tree` to `model`, as one animation of that name; nothing
// when there are no keys. Throws a Refusal when a key is not finite.
void AddAnimation(const NodeTree& tree, const ViewerSpace& space, const std::string& name,
                  BinaryData& data, tinygltf::Model& model);

}  // namespace host::gltf
