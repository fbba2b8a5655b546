#include "host/gltf/viewer/geometry.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "host/gltf/file/refusal.h"

namespace host::gltf {

namespace {

int StorePositions(const Shape& shape, const ViewerSpace& space, const Node& node, TimeValue time,
                   BinaryData& data) {
  std::vector<float> positions;
  positions.reserve(shape.corners.size() * 3);
  for (const Point3& corner : shape.corners) {
    const auto position = Rounded(space.Position(corner));
    RequireFinite(position, node, "shape", time);
    positions.insert(positions.end(), position.begin(), position.end());
  }
  Bounds bounds(3);
  bounds.Add(positions);
  return data.AddPositions(NumbersOf(std::move(positions)), bounds);
}

int StoreNormals(const Shape& shape, BinaryData& data) {
  std::vector<float> normals;
  normals.reserve(shape.normals.size() * 3);
  for (const Point3& normal : shape.normals) {
    const auto direction = Rounded(ViewerSpace::Direction(normal));
    normals.insert(normals.end(), direction.begin(), direction.end());
  }
  return data.AddNormals(NumbersOf(std::move(normals)));
}

int StoreTriangles(const Shape& shape, BinaryData& data) {
  std::vector<std::uint32_t> corners;
  corners.reserve(shape.triangles.size() * 3);
  for (const Triangle& triangle : shape.triangles) {
    corners.insert(corners.end(), triangle.begin(), triangle.end());
  }
  return data.AddTriangles(NumbersOf(std::move(corners)));
}

}  // namespace

nlohmann::json StorePrimitive(const Shape& shape, const ViewerSpace& space, const Node& node,
                              TimeValue time, int material, BinaryData& data) {
  const int positions = StorePositions(shape, space, node, time, data);
  const int normals = StoreNormals(shape, data);
  return {{"attributes", {{"POSITION", positions}, {"NORMAL", normals}}},
          {"indices", StoreTriangles(shape, data)},
          {"material", material}};
}

}  // namespace host::gltf
