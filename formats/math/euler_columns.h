#pragma once

#include <cmath>
#include <utility>

#include "formats/math/euler_order.h"

// The matrix of Euler angles, for all classes that hold matrices. Both ways between angles and a
// matrix follow the same formulas as formats/math/euler_rotation.h.
namespace orvane {

// Puts the matrix of the angles `a`, `b` and `c`, as an EulerRotation of these `axes` holds them,
// into its columns, m[column][row].
template <typename T, typename Columns>
void SetEulerColumns(const OrvaneEulerOrder::Axes& axes, T a, T b, T c, Columns& m) {
  const auto [i, j, k, odd_parity, repeats_first_axis, rotating_frame] = axes;
  if (rotating_frame) std::swap(a, c);
  if (odd_parity) a = -a, b = -b, c = -c;

  const T ci = std::cos(a), cj = std::cos(b), ch = std::cos(c);
  const T si = std::sin(a), sj = std::sin(b), sh = std::sin(c);
  const T cc = ci * ch, cs = ci * sh, sc = si * ch, ss = si * sh;
  if (repeats_first_axis) {
    m[i][i] = cj, m[j][i] = sj * si, m[k][i] = sj * ci;
    m[i][j] = sj * sh, m[j][j] = -cj * ss + cc, m[k][j] = -cj * cs - sc;
    m[i][k] = -sj * ch, m[j][k] = cj * sc + cs, m[k][k] = cj * cc - ss;
  } else {
    m[i][i] = cj * ch, m[j][i] = sj * sc - cs, m[k][i] = sj * cc + ss;
    m[i][j] = cj * sh, m[j][j] = sj * ss + cc, m[k][j] = sj * cs - sc;
    m[i][k] = -sj, m[j][k] = cj * si, m[k][k] = cj * ci;
  }
}

}  // namespace orvane
