#include "host/gltf/viewer/shape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <map>
#include <numbers>
#include <utility>

namespace host::gltf {

namespace {

// Where a bone is thickest, and how thin it may be, in parts of its length.
constexpr float kWaist = 0.15F;
constexpr float kThinnest = 0.02F;

// Corners and triangles; normals are for the finished shape.
struct Surface {
  std::vector<Point3> corners;
  std::vector<Triangle> triangles;
};

using Direction = std::array<double, 3>;

// Of unit length; any direction when there is none.
Point3 Unit(const Direction& direction) {
  const double length = std::hypot(direction[0], direction[1], direction[2]);
  if (length == 0.0) return {0.0F, 0.0F, 1.0F};
  return {static_cast<float>(direction[0] / length), static_cast<float>(direction[1] / length),
          static_cast<float>(direction[2] / length)};
}

Point3 OnUnitSphere(const Point3& point) { return Unit({point.x, point.y, point.z}); }

Direction Between(const Point3& from, const Point3& to) {
  return {double{to.x} - from.x, double{to.y} - from.y, double{to.z} - from.z};
}

Direction Cross(const Direction& a, const Direction& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double Dot(const Direction& a, const Direction& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

// On the X axis. Corners 0 to 3 go around its waist, from +Y over +Z; 4 is its start and 5 its end.
Octahedron OctahedronFrom(float start, float waist, float end, float half_width,
                          float half_height) {
  return {{{{waist, half_width, 0.0F},
            {waist, 0.0F, half_height},
            {waist, -half_width, 0.0F},
            {waist, 0.0F, -half_height},
            {start, 0.0F, 0.0F},
            {end, 0.0F, 0.0F}}},
          false};
}

Octahedron MarkOctahedron(float radius) {
  return OctahedronFrom(-radius, 0.0F, radius, radius, radius);
}

// The point that `transform` takes `corner` to.
Point3 Moved(const Point3& corner, const Matrix3& transform) {
  Matrix3 move;
  move.SetRow(3, corner);
  return (move * transform).GetRow(3);
}

// An icosahedron in the unit sphere: three golden rectangles about the origin.
Surface Icosahedron() {
  constexpr float kLong = std::numbers::phi_v<float>;
  Surface surface = {
      {{-1, kLong, 0},
       {1, kLong, 0},
       {-1, -kLong, 0},
       {1, -kLong, 0},
       {0, -1, kLong},
       {0, 1, kLong},
       {0, -1, -kLong},
       {0, 1, -kLong},
       {kLong, 0, -1},
       {kLong, 0, 1},
       {-kLong, 0, -1},
       {-kLong, 0, 1}},
      {{0, 11, 5},  {0, 5, 1},  {0, 1, 7},  {0, 7, 10}, {0, 10, 11}, {1, 5, 9}, {5, 11, 4},
       {11, 10, 2}, {10, 7, 6}, {7, 1, 8},  {3, 9, 4},  {3, 4, 2},   {3, 2, 6}, {3, 6, 8},
       {3, 8, 9},   {4, 9, 5},  {2, 4, 11}, {6, 2, 10}, {8, 6, 7},   {9, 8, 1}}};
  for (Point3& corner : surface.corners) corner = OnUnitSphere(corner);
  return surface;
}

// Splits the triangles of a surface on the unit sphere at the middles of their edges.
class Subdivision {
 public:
  explicit Subdivision(Surface surface) : surface_(std::move(surface)) {}

  Surface Result() {
    std::vector<Triangle> parts;
    for (const auto& [a, b, c] : surface_.triangles) {
      const std::uint32_t ab = Middle(a, b);
      const std::uint32_t bc = Middle(b, c);
      const std::uint32_t ca = Middle(c, a);
      parts.insert(parts.end(), {{a, ab, ca}, {ab, b, bc}, {ca, bc, c}, {ab, bc, ca}});
    }
    return {std::move(surface_.corners), std::move(parts)};
  }

 private:
  // The corner between two others; triangles that share an edge share it.
  std::uint32_t Middle(std::uint32_t a, std::uint32_t b) {
    const auto next = static_cast<std::uint32_t>(surface_.corners.size());
    const auto [entry, added] = middles_.try_emplace(std::minmax(a, b), next);
    if (added) {
      const Point3 from = surface_.corners[a];
      const Point3 to = surface_.corners[b];
      surface_.corners.push_back(OnUnitSphere({from.x + to.x, from.y + to.y, from.z + to.z}));
    }
    return entry->second;
  }

  Surface surface_;
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> middles_;
};

// What a transform does to normals: they stay across the surface, which its rows alone do not keep.
class NormalTransform {
 public:
  explicit NormalTransform(const Matrix3& transform) {
    Direction rows[3];
    for (int row = 0; row < 3; ++row) {
      const Point3& axis = transform.GetRow(row);
      rows[row] = {axis.x, axis.y, axis.z};
    }
    for (int row = 0; row < 3; ++row) {
      across_[row] = Cross(rows[(row + 1) % 3], rows[(row + 2) % 3]);
    }
    mirrors_ = Dot(rows[0], across_[0]) < 0.0;
  }

  bool Mirrors() const { return mirrors_; }

  Point3 Of(const Point3& normal) const {
    const double sign = mirrors_ ? -1.0 : 1.0;
    Direction turned;
    for (std::size_t i = 0; i < turned.size(); ++i) {
      turned[i] =
          sign * (normal.x * across_[0][i] + normal.y * across_[1][i] + normal.z * across_[2][i]);
    }
    return Unit(turned);
  }

 private:
  Direction across_[3];
  bool mirrors_;
};

}  // namespace

Octahedron BoneOctahedron(float width, float height, float length, float mark_radius) {
  if (length == 0.0F) return MarkOctahedron(mark_radius);
  const float thinnest = std::abs(length) * kThinnest;
  const float half_width = std::max(std::abs(width), thinnest) / 2.0F;
  const float half_height = std::max(std::abs(height), thinnest) / 2.0F;
  // A bone that points backwards is mirrored twice: its outside stays outside.
  return OctahedronFrom(0.0F, length * kWaist, length, std::copysign(half_width, length),
                        half_height);
}

Shape MarkShape(float radius) {
  const Octahedron octahedron = MarkOctahedron(radius);
  const FaceNormals normals = NormalsOf(octahedron);
  Shape shape;
  for (std::size_t face = 0; face < Octahedron::kFaces.size(); ++face) {
    const auto first = static_cast<std::uint32_t>(shape.corners.size());
    for (const std::size_t corner : Octahedron::kFaces[face]) {
      shape.corners.push_back(octahedron.corners[corner]);
    }
    shape.normals.insert(shape.normals.end(), 3, normals[face]);
    shape.triangles.push_back({first, first + 1, first + 2});
  }
  return shape;
}

Shape BallShape(float radius) {
  const float size = std::abs(radius);
  Surface ball = Subdivision(Subdivision(Icosahedron()).Result()).Result();
  std::vector<Point3> normals = ball.corners;
  for (Point3& corner : ball.corners) {
    corner = {corner.x * size, corner.y * size, corner.z * size};
  }
  return {std::move(ball.corners), std::move(normals), std::move(ball.triangles)};
}

Shape Transformed(Shape shape, const Matrix3& transform) {
  for (Point3& corner : shape.corners) corner = Moved(corner, transform);
  const NormalTransform normals(transform);
  for (Point3& normal : shape.normals) normal = normals.Of(normal);
  if (normals.Mirrors()) {
    for (Triangle& triangle : shape.triangles) std::swap(triangle[1], triangle[2]);
  }
  return shape;
}

FaceNormals NormalsOf(const Octahedron& octahedron) {
  const auto& corners = octahedron.corners;
  FaceNormals normals;
  for (std::size_t face = 0; face < normals.size(); ++face) {
    const auto [a, b, c] = Octahedron::kFaces[face];
    normals[face] = Unit(Cross(Between(corners[a], corners[b]), Between(corners[a], corners[c])));
  }
  return normals;
}

Octahedron Transformed(Octahedron octahedron, const Matrix3& transform) {
  for (Point3& corner : octahedron.corners) corner = Moved(corner, transform);
  if (NormalTransform(transform).Mirrors()) octahedron.is_mirrored = !octahedron.is_mirrored;
  return octahedron;
}

FaceNormals Transformed(FaceNormals normals, const Matrix3& transform) {
  const NormalTransform turn(transform);
  for (Point3& normal : normals) normal = turn.Of(normal);
  return normals;
}

}  // namespace host::gltf
