#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "sdk/geom/matrix3.h"
#include "sdk/geom/point3.h"

// What objects look like, in the node's own space (host axes, system units): few triangles, without
// normals, so that viewers draw flat faces.

namespace host::gltf {

// Three corners, counter-clockwise as seen from outside.
using Triangle = std::array<std::uint32_t, 3>;

struct Shape {
  std::vector<Point3> corners;
  std::vector<Triangle> triangles;
};

// An octahedron from the origin to (`length`, 0, 0), `width` wide along Y and `height` high along
// Z at its waist. One too thin to be seen is drawn a little thicker. A bone without length is drawn
// as a mark of radius `mark_radius`.
Shape BoneShape(float width, float height, float length, float mark_radius);

// An octahedron about the origin, its corners on the axes.
Shape MarkShape(float radius);

// A ball of 128 triangles about the origin.
Shape BallShape(float radius);

// `shape` with its corners where `transform` takes them.
Shape Transformed(Shape shape, const Matrix3& transform);

}  // namespace host::gltf
