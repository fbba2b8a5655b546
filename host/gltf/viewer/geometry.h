#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <vector>

#include "host/gltf/file/binary_data.h"
#include "host/gltf/viewer/shape.h"
#include "host/gltf/viewer/viewer_space.h"
#include "host/scene/node.h"

// Shapes turned into vertices. How they look is shape.h's business, and which of them share a mesh
// is left to skins.h and object_meshes.h, which own one for each primitive.

namespace host::gltf {

// Shapes on their way into a primitive, which is what glTF calls the part of a mesh that has one
// material. Collects all with a joint or all without.
class Geometry {
 public:
  // Appends `shape`, which stands for `node` at `time` (ticks). Throws a Refusal when it is not
  // finite.
  void Add(const Shape& shape, const ViewerSpace& space, const Node& node, TimeValue time);

  // The same; the shape follows joint number `joint` of the skin.
  void AddWithJoint(const Shape& shape, const ViewerSpace& space, const Node& node, TimeValue time,
                    std::uint16_t joint);

  // Stores what was collected in `data`, and returns the primitive.
  // REQUIRES: that is at least one shape.
  nlohmann::json StoreIn(BinaryData& data, int material) const;

 private:
  std::vector<float> positions_;
  std::vector<float> normals_;
  std::vector<std::uint16_t> joints_;
  std::vector<std::uint32_t> triangles_;
};

}  // namespace host::gltf
