#pragma once

#include <nlohmann/json.hpp>

#include "host/gltf/file/binary_data.h"
#include "host/gltf/viewer/shape.h"
#include "host/gltf/viewer/viewer_space.h"
#include "host/scene/node.h"

// Shapes turned into vertices. How they look is shape.h's business, and which of them share a mesh
// is left to object_meshes.h. The bones of a skin, of which there may be very many, have a way of
// their own (skin_geometry.h).

namespace host::gltf {

// Stores `shape`, which stands for `node` at `time` (ticks), in `data`, and returns the primitive,
// which is what glTF calls the part of a mesh that has one material. Throws a Refusal when the
// shape is not finite.
nlohmann::json StorePrimitive(const Shape& shape, const ViewerSpace& space, const Node& node,
                              TimeValue time, int material, BinaryData& data);

}  // namespace host::gltf
