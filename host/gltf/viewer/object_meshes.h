#pragma once

#include <vector>

#include "host/gltf/file/document.h"
#include "host/gltf/file/node_tree.h"
#include "host/gltf/viewer/materials.h"
#include "host/gltf/viewer/viewer_space.h"

// The meshes of single nodes. Those of bones, which move with joints, are in skins.h.

namespace host::gltf {

// Adds what the nodes of `tree` show beside bones: spheres, and point helpers as marks of one unit
// to each side. Equal ones share a mesh. Dummies stay without. Returns the index of each node's
// mesh, -1 for none. Throws a Refusal when a shape is not finite.
std::vector<int> AddObjectMeshes(const NodeTree& tree, const ViewerSpace& space, TimeValue time,
                                 Materials& materials, Document& document);

}  // namespace host::gltf
