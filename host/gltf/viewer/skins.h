#pragma once

#include "host/gltf/file/document.h"
#include "host/gltf/file/node_tree.h"
#include "host/gltf/viewer/materials.h"
#include "host/gltf/viewer/viewer_space.h"

// Bones as skins with their meshes. What else nodes show is in object_meshes.h.

namespace host::gltf {

// Adds the bones of `tree` as skins, bound as they stand at `time` (ticks), each with a mesh whose
// node is one of the scene's roots. The nodes of `document` are those of the tree, which outlives
// it. Throws a Refusal when a shape is not finite.
void AddSkins(const NodeTree& tree, const ViewerSpace& space, TimeValue time, Materials& materials,
              Document& document);

}  // namespace host::gltf
