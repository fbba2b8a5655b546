#pragma once

#include "host/animation/transform_controller.h"
#include "host/gltf/json_field.h"
#include "host/gltf/stored_numbers.h"
#include "host/scene/scene.h"

namespace host::gltf {

// Gives `transform`, a new one of `scene`, the controllers in `record`, the record of a node, with
// all their keys. Throws a Refusal when they are damaged.
void RestoreTransform(const JsonField& record, StoredNumbers& numbers, Scene& scene,
                      TransformController& transform);

}  // namespace host::gltf
