#include "host/gltf/viewer/geometry.h"

#include <cassert>
#include <cstddef>
#include <utility>

#include "host/gltf/file/refusal.h"

namespace host::gltf {

namespace {

// Joints that a vertex can follow in glTF; ours follow the first of them alone.
constexpr std::size_t kJointsOfVertex = 4;

// Full weight for the first joint of every vertex.
std::vector<float> FirstJointWeights(std::size_t vertices) {
  std::vector<float> weights(vertices * kJointsOfVertex, 0.0F);
  for (std::size_t i = 0; i < weights.size(); i += kJointsOfVertex) weights[i] = 1.0F;
  return weights;
}

}  // namespace

void Geometry::Add(const Shape& shape, const ViewerSpace& space, const Node& node, TimeValue time) {
  const auto first = static_cast<std::uint32_t>(positions_.size() / 3);
  for (const Point3& corner : shape.corners) {
    const auto position = Rounded(space.Position(corner));
    RequireFinite(position, node, "shape", time);
    positions_.insert(positions_.end(), position.begin(), position.end());
  }
  for (const Point3& normal : shape.normals) {
    const auto direction = Rounded(ViewerSpace::Direction(normal));
    normals_.insert(normals_.end(), direction.begin(), direction.end());
  }
  for (const Triangle& triangle : shape.triangles) {
    for (const std::uint32_t corner : triangle) triangles_.push_back(first + corner);
  }
}

void Geometry::AddWithJoint(const Shape& shape, const ViewerSpace& space, const Node& node,
                            TimeValue time, std::uint16_t joint) {
  Add(shape, space, node, time);
  for (std::size_t i = 0; i < shape.corners.size(); ++i) {
    joints_.insert(joints_.end(), {joint, 0, 0, 0});
  }
}

nlohmann::json Geometry::StoreIn(BinaryData& data, int material) const {
  assert(!triangles_.empty());
  nlohmann::json attributes = {{"POSITION", data.AddPositions(positions_)},
                               {"NORMAL", data.AddNormals(normals_)}};
  if (!joints_.empty()) {
    attributes["JOINTS_0"] = data.AddJoints(joints_);
    attributes["WEIGHTS_0"] = data.AddWeights(FirstJointWeights(joints_.size() / kJointsOfVertex));
  }
  return {{"attributes", std::move(attributes)},
          {"indices", data.AddTriangles(triangles_)},
          {"material", material}};
}

}  // namespace host::gltf
