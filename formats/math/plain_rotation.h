#pragma once

#include <array>

#include "formats/math/euler_rotation.h"
#include "formats/math/matrix_columns.h"
#include "formats/math/rotation_matrix3.h"

// The matrix of a rotation as nine plain numbers, for whoever works with very many of them: the
// same numbers, bit for bit, as those of a RotationMatrix3.
namespace orvane {

class PlainRotation {
 public:
  // The identity.
  PlainRotation() = default;
  // The same rotation as `rotation`, read in its own order.
  explicit PlainRotation(const EulerRotation& rotation) { Set(rotation); }

  void Set(const EulerRotation& rotation);

  // M(row, column), not checked.
  [[nodiscard]] double Element(unsigned row, unsigned column) const {
    return columns_[column][row];
  }

  // `origin` + M `vector`, added from left to right.
  [[nodiscard]] std::array<double, 3> Moved(const std::array<double, 3>& origin,
                                            const std::array<double, 3>& vector) const {
    const auto& [first, second, third] = columns_;
    const auto& [x, y, z] = vector;
    return {origin[0] + first[0] * x + second[0] * y + third[0] * z,
            origin[1] + first[1] * x + second[1] * y + third[1] * z,
            origin[2] + first[2] * x + second[2] * y + third[2] * z};
  }

  [[nodiscard]] RotationMatrix3 Matrix() const {
    RotationMatrix3 matrix;
    for (unsigned column = 0; column < 3; ++column) {
      for (unsigned row = 0; row < 3; ++row) matrix[column][row] = columns_[column][row];
    }
    return matrix;
  }

  // M_left M_right: `right` is applied first.
  friend PlainRotation operator*(const PlainRotation& left, const PlainRotation& right) {
    PlainRotation product;
    MultiplyColumns<double>(left.columns_, right.columns_, product.columns_);
    return product;
  }

 private:
  std::array<std::array<double, 3>, 3> columns_ = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
};

}  // namespace orvane
