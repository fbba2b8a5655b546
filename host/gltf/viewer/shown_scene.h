#pragma once

#include "host/gltf/file/document.h"
#include "host/gltf/file/node_tree.h"
#include "host/scene/scene.h"

// What a file holds for viewers: nodes, shapes in their wire colors, and one animation.
// host/gltf/writer.h tells what they make of a scene.

namespace host::gltf {

// Adds `scene`, whose nodes are `tree`, to `document`. Throws a Refusal when a number is not
// finite.
// REQUIRES: `document` has no nodes yet.
void ShowScene(const Scene& scene, const NodeTree& tree, Document& document);

}  // namespace host::gltf
