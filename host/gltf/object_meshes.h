#pragma once

#include <tiny_gltf.h>

#include "host/gltf/binary_data.h"
#include "host/gltf/materials.h"
#include "host/gltf/node_tree.h"
#include "host/gltf/viewer_space.h"

namespace host::gltf {

// Adds what the nodes of `tree` show beside bones: spheres, and point helpers as marks of one unit
// to each side. Equal ones share a mesh. Dummies stay without. The nodes of `model` are those of
// the tree. Throws a Refusal when a shape is not finite.
void AddObjectMeshes(const NodeTree& tree, const ViewerSpace& space, TimeValue time,
                     Materials& materials, BinaryData& data, tinygltf::Model& model);

}  // namespace host::gltf
