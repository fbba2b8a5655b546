#pragma once

#include "host/animation/transform_controller.h"
#include "host/gltf/file/json_field.h"
#include "host/gltf/kept/stored_keys.h"
#include "host/scene/scene.h"

// A node's controllers as they were kept. What else a node has is restore_scene.cpp's business. The
// node owns the controllers.

namespace host::gltf {

// Gives `transform`, a new one of `scene`, the controllers in `record`, the record of a node, with
// their keys, the next ones of `keys`. Throws a Refusal when they are damaged.
void RestoreTransform(const JsonField& record, StoredKeys& keys, Scene& scene,
                      TransformController& transform);

}  // namespace host::gltf
