#pragma once

// A rotation as the host stores it: a unit quaternion in single precision that turns the opposite
// way to the textbook. With T(q) the textbook matrix of q for column vectors, the row-vector matrix
// of q has Matrix3[r][c] = T(q)[r][c]. +90 degrees about Z is (0, 0, 0.7071, -0.7071). q and -q are
// the same rotation.
class Quat {
 public:
  constexpr Quat() = default;
  constexpr Quat(float x_value, float y_value, float z_value, float w_value)
      : x(x_value), y(y_value), z(z_value), w(w_value) {}

  friend constexpr bool operator==(const Quat&, const Quat&) = default;

  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;
  float w = 1.0F;
};
