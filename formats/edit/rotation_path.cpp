#include "formats/edit/rotation_path.h"

#include <array>
#include <cmath>

#include "formats/math/quaternion.h"
#include "formats/math/rotation_matrix3.h"

namespace orvane {
namespace {

using FourNumbers = std::array<double, 4>;  // x, y, z, w

FourNumbers NumbersOf(const Quaternion& rotation) {
  return {rotation.x(), rotation.y(), rotation.z(), rotation.w()};
}

RotationMatrix3 MatrixOf(const FourNumbers& numbers) {
  const auto& [x, y, z, w] = numbers;
  RotationMatrix3 matrix;  // by columns
  matrix[0] = Vector3(1 - 2 * (y * y + z * z), 2 * (x * y + w * z), 2 * (x * z - w * y));
  matrix[1] = Vector3(2 * (x * y - w * z), 1 - 2 * (x * x + z * z), 2 * (y * z + w * x));
  matrix[2] = Vector3(2 * (x * z + w * y), 2 * (y * z - w * x), 1 - 2 * (x * x + y * y));
  return matrix;
}

FourNumbers Normalized(FourNumbers numbers) {
  double square = 0.0;
  for (const double number : numbers) square += number * number;
  for (double& number : numbers) number /= std::sqrt(square);
  return numbers;
}

// Shoemake, "Animating Rotation with Quaternion Curves", 1985. Where the two are almost the same,
// the sine to divide by is almost 0, and a straight line as good.
FourNumbers Slerp(const FourNumbers& from, FourNumbers to, double share) {
  double cosine = 0.0;
  for (std::size_t index = 0; index < from.size(); ++index) cosine += from[index] * to[index];
  if (cosine < 0.0) {
    cosine = -cosine;
    for (double& number : to) number = -number;
  }
  constexpr double kAlmostTheSame = 0.999999;
  double of_from = 1.0 - share;
  double of_to = share;
  if (cosine < kAlmostTheSame) {
    const double angle = std::acos(cosine);
    of_from = std::sin(of_from * angle) / std::sin(angle);
    of_to = std::sin(of_to * angle) / std::sin(angle);
  }
  FourNumbers between{};
  for (std::size_t index = 0; index < from.size(); ++index) {
    between[index] = of_from * from[index] + of_to * to[index];
  }
  return Normalized(between);
}

EulerRotation InDefaultOrder(const EulerRotation& rotation) {
  EulerRotation other(0, 0, 0, OrvaneEulerOrder());
  return other.Set(rotation);
}

bool IsFinite(const EulerRotation& rotation) {
  return std::isfinite(rotation[0]) && std::isfinite(rotation[1]) && std::isfinite(rotation[2]);
}

}  // namespace

double Between(double from, double to, double share) {
  if (!std::isfinite(from) || !std::isfinite(to)) return share < 0.5 ? from : to;
  return from == to ? from : from + share * (to - from);
}

EulerRotation Between(const EulerRotation& from, const EulerRotation& to, double share,
                      RotationPath path) {
  const EulerRotation first = InDefaultOrder(from);
  const EulerRotation second = InDefaultOrder(to);
  if (path == RotationPath::kLinear || !IsFinite(first) || !IsFinite(second)) {
    const EulerRotation next = ContinueEulerRotation(second, first);
    return EulerRotation(Between(first[0], next[0], share), Between(first[1], next[1], share),
                         Between(first[2], next[2], share), OrvaneEulerOrder());
  }
  const FourNumbers between =
      Slerp(NumbersOf(Quaternion(first)), NumbersOf(Quaternion(second)), share);
  EulerRotation angles(0, 0, 0, OrvaneEulerOrder());
  return ContinueEulerRotation(angles.Set(MatrixOf(between)), first);
}

}  // namespace orvane
