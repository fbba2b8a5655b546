#pragma once

// A point or vector in single precision, as the host stores it.
class Point3 {
 public:
  constexpr Point3() = default;
  constexpr Point3(float x_value, float y_value, float z_value)
      : x(x_value), y(y_value), z(z_value) {}

  // Component 0, 1 or 2; any other index is z.
  constexpr float& operator[](int i) { return i == 0 ? x : i == 1 ? y : z; }
  constexpr const float& operator[](int i) const { return i == 0 ? x : i == 1 ? y : z; }

  friend constexpr bool operator==(const Point3&, const Point3&) = default;

  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;
};
