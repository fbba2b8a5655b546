#pragma once

#include "host/gltf/file/document.h"
#include "host/gltf/file/key_counts.h"
#include "host/gltf/file/node_tree.h"
#include "host/gltf/viewer/viewer_space.h"
#include "host/gltf/viewer/viewer_time.h"

// Keys as viewers see them; the pose at one time is shown_scene.h's business.

namespace host::gltf {

// Adds the keys of all controllers in `tree` to the animation of `document`. Throws a Refusal when
// a key is not finite.
void AddAnimation(const NodeTree& tree, const ViewerSpace& space, const ViewerTime& time,
                  Document& document);

// The keys that AddAnimation adds to the animation, but for those that hide a node.
KeyCounts ShownKeys(const NodeTree& tree, const ViewerTime& time);

}  // namespace host::gltf
