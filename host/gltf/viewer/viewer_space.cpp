#include "host/gltf/viewer/viewer_space.h"

#include <cmath>

namespace host::gltf {

namespace {

// A host vector on glTF's axes. The subtraction makes no negative zeros.
std::array<double, 3> OnViewerAxes(const Point3& vector) {
  return {vector.x, vector.z, 0.0 - vector.y};
}

}  // namespace

std::array<double, 3> ViewerSpace::Position(const Point3& position) const {
  const auto [x, y, z] = OnViewerAxes(position);
  return {Meters(x), Meters(y), Meters(z)};
}

std::array<double, 3> ViewerSpace::Direction(const Point3& direction) {
  return OnViewerAxes(direction);
}

std::array<double, 4> ViewerSpace::Rotation(const Quat& rotation) {
  const double x = rotation.x;
  const double y = rotation.y;
  const double z = rotation.z;
  const double w = rotation.w;
  const double length = std::sqrt(x * x + y * y + z * z + w * w);
  if (length == 0.0) return {0.0, 0.0, 0.0, 1.0};
  // The same turn in the textbook's sense; of its two signs the one with w not negative.
  if (w > 0.0) return {(0.0 - x) / length, (0.0 - z) / length, y / length, w / length};
  return {x / length, z / length, (0.0 - y) / length, (0.0 - w) / length};
}

std::array<double, 3> ViewerSpace::Scale(const Point3& scale) {
  return {scale.x, scale.z, scale.y};
}

std::array<double, 16> ViewerSpace::Matrix(const Matrix3& matrix) const {
  const Point3& row_y = matrix.GetRow(1);
  const auto x = OnViewerAxes(matrix.GetRow(0));
  const auto y = OnViewerAxes(matrix.GetRow(2));
  const auto z = OnViewerAxes({-row_y.x, -row_y.y, -row_y.z});
  const auto origin = Position(matrix.GetRow(3));
  return {x[0], x[1], x[2], 0.0, y[0],      y[1],      y[2],      0.0,
          z[0], z[1], z[2], 0.0, origin[0], origin[1], origin[2], 1.0};
}

Matrix3 ViewerSpace::HostMatrix(const std::array<double, 16>& matrix) const {
  const auto on_host_axes = [&matrix](std::size_t column, double factor) {
    const double* const vector = &matrix[column * 4];
    return Point3(static_cast<float>(vector[0] * factor), static_cast<float>(-vector[2] * factor),
                  static_cast<float>(vector[1] * factor));
  };
  return {on_host_axes(0, 1.0), on_host_axes(2, -1.0), on_host_axes(1, 1.0),
          on_host_axes(3, 1000.0 / millimeters_)};
}

}  // namespace host::gltf
