#include "host/gltf/viewer/shape.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <utility>

namespace host::gltf {

namespace {

// Where a bone is thickest, and how thin it may be, in parts of its length.
constexpr float kWaist = 0.15F;
constexpr float kThinnest = 0.02F;

// An octahedron on the X axis. Corners 0 to 3 go around its waist, from +Y over +Z; 4 is its start
// and 5 its end.
Shape Octahedron(float start, float waist, float end, float half_width, float half_height) {
  return {{{waist, half_width, 0.0F},
           {waist, 0.0F, half_height},
           {waist, -half_width, 0.0F},
           {waist, 0.0F, -half_height},
           {start, 0.0F, 0.0F},
           {end, 0.0F, 0.0F}},
          {{0, 1, 5}, {1, 2, 5}, {2, 3, 5}, {3, 0, 5}, {1, 0, 4}, {2, 1, 4}, {3, 2, 4}, {0, 3, 4}}};
}

Point3 OnUnitSphere(const Point3& point) {
  const float length = std::sqrt(point.x * point.x + point.y * point.y + point.z * point.z);
  return {point.x / length, point.y / length, point.z / length};
}

// Splits the triangles of a shape on the unit sphere at the middles of their edges.
class Subdivision {
 public:
  explicit Subdivision(Shape shape) : shape_(std::move(shape)) {}

  Shape Result() {
    std::vector<Triangle> parts;
    for (const auto& [a, b, c] : shape_.triangles) {
      const std::uint32_t ab = Middle(a, b);
      const std::uint32_t bc = Middle(b, c);
      const std::uint32_t ca = Middle(c, a);
      parts.insert(parts.end(), {{a, ab, ca}, {ab, b, bc}, {ca, bc, c}, {ab, bc, ca}});
    }
    return {std::move(shape_.corners), std::move(parts)};
  }

 private:
  // The corner between two others; triangles that share an edge share it.
  std::uint32_t Middle(std::uint32_t a, std::uint32_t b) {
    const auto next = static_cast<std::uint32_t>(shape_.corners.size());
    const auto [entry, added] = middles_.try_emplace(std::minmax(a, b), next);
    if (added) {
      const Point3 from = shape_.corners[a];
      const Point3 to = shape_.corners[b];
      shape_.corners.push_back(OnUnitSphere({from.x + to.x, from.y + to.y, from.z + to.z}));
    }
    return entry->second;
  }

  Shape shape_;
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> middles_;
};

}  // namespace

Shape BoneShape(float width, float height, float length, float mark_radius) {
  if (length == 0.0F) return MarkShape(mark_radius);
  const float thinnest = std::abs(length) * kThinnest;
  const float half_width = std::max(std::abs(width), thinnest) / 2.0F;
  const float half_height = std::max(std::abs(height), thinnest) / 2.0F;
  // A bone that points backwards is mirrored twice: its outside stays outside.
  return Octahedron(0.0F, length * kWaist, length, std::copysign(half_width, length), half_height);
}

Shape MarkShape(float radius) { return Octahedron(-radius, 0.0F, radius, radius, radius); }

Shape BallShape(float radius) {
  const float size = std::abs(radius);
  Shape ball = Subdivision(Subdivision(MarkShape(1.0F)).Result()).Result();
  for (Point3& corner : ball.corners) {
    corner = {corner.x * size, corner.y * size, corner.z * size};
  }
  return ball;
}

Shape Transformed(Shape shape, const Matrix3& transform) {
  for (Point3& corner : shape.corners) {
    Matrix3 move;
    move.SetRow(3, corner);
    corner = (move * transform).GetRow(3);
  }
  return shape;
}

}  // namespace host::gltf
