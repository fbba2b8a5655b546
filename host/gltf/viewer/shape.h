#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "sdk/geom/matrix3.h"
#include "sdk/geom/point3.h"

// What objects look like, in the node's own space (host axes, system units), in few triangles.

namespace host::gltf {

// Three corners, counter-clockwise as seen from outside.
using Triangle = std::array<std::uint32_t, 3>;

struct Shape {
  std::vector<Point3> corners;

  // The direction that the surface faces at each corner, outwards and of unit length.
  std::vector<Point3> normals;

  std::vector<Triangle> triangles;
};

// Two pyramids with a common base, their faces flat: what is drawn of a bone.
struct Octahedron {
  // The corners of each face, counter-clockwise as seen from outside, and clockwise when it is
  // mirrored.
  static constexpr std::array<std::array<std::size_t, 3>, 8> kFaces = {
      {{0, 1, 5}, {1, 2, 5}, {2, 3, 5}, {3, 0, 5}, {1, 0, 4}, {2, 1, 4}, {3, 2, 4}, {0, 3, 4}}};

  std::array<Point3, 6> corners;
  bool is_mirrored = false;
};

// The direction of each face, outwards and of unit length.
using FaceNormals = std::array<Point3, Octahedron::kFaces.size()>;
FaceNormals NormalsOf(const Octahedron& octahedron);

// From the origin to (`length`, 0, 0), `width` wide along Y and `height` high along Z at its waist.
// One too thin to be seen is drawn a little thicker. A bone without length is drawn as a mark of
// radius `mark_radius`.
Octahedron BoneOctahedron(float width, float height, float length, float mark_radius);

// An octahedron about the origin, its corners on the axes and its faces flat.
Shape MarkShape(float radius);

// A ball of 320 triangles about the origin, its surface smooth.
Shape BallShape(float radius);

// A shape with its corners where `transform` takes them, and the normals that it has then. What is
// outside stays outside if that mirrors.
Shape Transformed(Shape shape, const Matrix3& transform);
Octahedron Transformed(Octahedron octahedron, const Matrix3& transform);
FaceNormals Transformed(FaceNormals normals, const Matrix3& transform);

}  // namespace host::gltf
