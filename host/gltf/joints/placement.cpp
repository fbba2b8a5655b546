#include "host/gltf/joints/placement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace host::gltf {

namespace {

constexpr double kSame = 1e-3;

double Dot(const Triple& left, const Triple& right) {
  return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

Triple Cross(const Triple& left, const Triple& right) {
  return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
          left[0] * right[1] - left[1] * right[0]};
}

Triple Scaled(const Triple& vector, double factor) {
  return {vector[0] * factor, vector[1] * factor, vector[2] * factor};
}

Triple Sum(const Triple& left, const Triple& right) {
  return {left[0] + right[0], left[1] + right[1], left[2] + right[2]};
}

double Length(const Triple& vector) { return std::sqrt(Dot(vector, vector)); }

// `vector` along the axes of `transform`.
Triple Turned(const Transform& transform, const Triple& vector) {
  return Sum(Sum(Scaled(transform.axes[0], vector[0]), Scaled(transform.axes[1], vector[1])),
             Scaled(transform.axes[2], vector[2]));
}

bool IsFinite(const Transform& transform) {
  const auto is_finite = [](const Triple& vector) {
    return std::all_of(vector.begin(), vector.end(), [](double x) { return std::isfinite(x); });
  };
  return is_finite(transform.origin) &&
         std::all_of(transform.axes.begin(), transform.axes.end(), is_finite);
}

}  // namespace

Transform Product(const Transform& first, const Transform& second) {
  Transform product;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    product.axes[axis] = Turned(first, second.axes[axis]);
  }
  product.origin = Sum(Turned(first, second.origin), first.origin);
  return product;
}

std::optional<Transform> Inverse(const Transform& transform) {
  const auto& [x, y, z] = transform.axes;
  const std::array<Triple, 3> rows = {Cross(y, z), Cross(z, x), Cross(x, y)};
  const double determinant = Dot(x, rows[0]);
  Transform inverse;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    inverse.axes[axis] = Scaled({rows[0][axis], rows[1][axis], rows[2][axis]}, 1.0 / determinant);
  }
  inverse.origin = Scaled(Turned(inverse, transform.origin), -1.0);
  if (!IsFinite(inverse)) return std::nullopt;
  return inverse;
}

std::optional<Placement> PlacementOf(const Transform& transform) {
  const auto& [x, y, z] = transform.axes;
  const double scale = Length(x);
  if (!(scale > 0.0) || !IsFinite(transform)) return std::nullopt;
  if (!IsSameScale(Length(y), scale) || !IsSameScale(Length(z), scale)) return std::nullopt;
  const double area = scale * scale;
  const bool is_sheared = std::abs(Dot(x, y)) > kSame * area ||
                          std::abs(Dot(y, z)) > kSame * area || std::abs(Dot(z, x)) > kSame * area;
  if (is_sheared || Dot(Cross(x, y), z) <= 0.0) return std::nullopt;
  Placement placement;
  placement.scale = scale;
  auto& [unit_x, unit_y, unit_z] = placement.turn.axes;
  unit_x = Scaled(x, 1.0 / scale);
  const Triple upright = Sum(y, Scaled(unit_x, -Dot(unit_x, y)));
  unit_y = Scaled(upright, 1.0 / Length(upright));
  unit_z = Cross(unit_x, unit_y);
  placement.turn.origin = transform.origin;
  return placement;
}

bool IsSameScale(double left, double right) {
  return std::abs(left - right) <= kSame * std::max(std::abs(left), std::abs(right));
}

Transform Undone(const Transform& turn) {
  Transform undone;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    undone.axes[axis] = {turn.axes[0][axis], turn.axes[1][axis], turn.axes[2][axis]};
  }
  undone.origin = Scaled(Turned(undone, turn.origin), -1.0);
  return undone;
}

double AxesApart(const Transform& left, const Transform& right) {
  double apart = 0.0;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    apart += 1.0 - Dot(left.axes[axis], right.axes[axis]);
  }
  return apart;
}

}  // namespace host::gltf
