#pragma once

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>

#include "sdk/geom/matrix3.h"
#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

// The one place where the host's space (system units, Z up, row vectors, quaternions that turn the
// other way) becomes the space of glTF (metres, Y up, column vectors, textbook quaternions). Both
// are right-handed: host (x, y, z) is glTF (x, z, -y). Every node's own axes change in the same
// way, so local values convert like world values, and a bone still points along its local X. What
// is not finite stays not finite.

namespace host::gltf {

class ViewerSpace {
 public:
  // `millimeters` is the length of one system unit.
  // REQUIRES: it is positive.
  explicit ViewerSpace(double millimeters) : millimeters_(millimeters) {
    assert(millimeters > 0.0);
  }

  std::array<double, 3> Position(const Point3& position) const;

  // Of any length, which stays.
  static std::array<double, 3> Direction(const Point3& direction);

  // `meters` in system units.
  float HostLength(double meters) const {
    return static_cast<float>(meters * 1000.0 / millimeters_);
  }

  // x, y, z, w, of unit length, w not negative; the zero quaternion counts as the identity.
  static std::array<double, 4> Rotation(const Quat& rotation);

  // The factors along the node's own axes.
  static std::array<double, 3> Scale(const Point3& scale);

  // 16 elements, column by column.
  std::array<double, 16> Matrix(const Matrix3& matrix) const;

  // The other way round.
  // REQUIRES: the last row is that of a transform: 0, 0, 0, 1.
  Matrix3 HostMatrix(const std::array<double, 16>& matrix) const;

 private:
  double Meters(double length) const { return length * millimeters_ / 1000.0; }

  double millimeters_;
};

// `numbers` as a glTF file's binary data holds them.
template <std::size_t kSize>
std::array<float, kSize> Rounded(const std::array<double, kSize>& numbers) {
  std::array<float, kSize> rounded;
  std::transform(numbers.begin(), numbers.end(), rounded.begin(),
                 [](double number) { return static_cast<float>(number); });
  return rounded;
}

}  // namespace host::gltf
