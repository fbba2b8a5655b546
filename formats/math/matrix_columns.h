#pragma once

// What matrices have in common that are stored as their three columns, however they store them:
// m[column][row] is a number.
namespace orvane {

// Writes M_left M_right into `product`, which is neither of them: `right` is applied first.
// Intended: every sum begins with 0, which makes a lone -0 a 0.
template <typename T, typename Columns>
void MultiplyColumns(const Columns& left, const Columns& right, Columns& product) {
  for (unsigned int column = 0; column < 3; ++column) {
    const T x = right[column][0], y = right[column][1], z = right[column][2];
    product[column][0] = T() + x * left[0][0] + y * left[1][0] + z * left[2][0];
    product[column][1] = T() + x * left[0][1] + y * left[1][1] + z * left[2][1];
    product[column][2] = T() + x * left[0][2] + y * left[1][2] + z * left[2][2];
  }
}

}  // namespace orvane
