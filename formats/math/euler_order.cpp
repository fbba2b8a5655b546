#include "formats/math/euler_order.h"

#include <array>

namespace orvane {
namespace {

constexpr std::array<unsigned int, 4> kSafe = {0, 1, 2, 0};
constexpr std::array<unsigned int, 4> kNext = {1, 2, 0, 1};

}  // namespace

OrvaneEulerOrder::Axes OrvaneEulerOrder::Decode() const {
  const unsigned int parity = (code_ >> 2) & 1;
  Axes axes;
  axes.i = kSafe[(code_ >> 3) & 3];
  axes.j = kNext[axes.i + parity];
  axes.k = kNext[axes.i + 1 - parity];
  axes.odd_parity = parity == 1;
  axes.repeats_first_axis = ((code_ >> 1) & 1) == 1;
  axes.rotating_frame = (code_ & 1) == 1;
  return axes;
}

}  // namespace orvane
