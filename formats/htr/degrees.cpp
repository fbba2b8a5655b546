#include "formats/htr/degrees.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "formats/text/number_form.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

// Both factors and both products are rounded: that moves a number by so many places at most.
constexpr std::int64_t kReach = 4;

// The double that lies `places` further from 0 than `number`.
double Neighbor(double number, std::int64_t places) {
  std::int64_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  bits += places;
  std::memcpy(&number, &bits, sizeof bits);
  return number;
}

std::ptrdiff_t LengthOf(double number) {
  std::array<char, NumberForm::kLongest> text;
  return NumberForm::Shortest().Write(number, text.data()) - text.data();
}

// Of those beside `nearest` that are read as `radians`, the one with the shortest text; not a
// number where there is none.
double ShortestReadAs(double radians, double nearest) {
  double shortest = std::nan("");
  for (std::int64_t places = -kReach; places <= kReach; ++places) {
    const double degrees = Neighbor(nearest, places);
    if (degrees * kRadiansPerDegree != radians) continue;
    if (std::isnan(shortest) || LengthOf(degrees) < LengthOf(shortest)) shortest = degrees;
  }
  return shortest;
}

}  // namespace

double DegreesReadAs(double radians) {
  const double nearest = radians * kDegreesPerRadian;
  // Where neighbors are no numbers, or of the other sign.
  if (!std::isnormal(nearest) || !std::isfinite(Neighbor(nearest, kReach))) return nearest;
  const double degrees = ShortestReadAs(radians, nearest);
  if (!std::isnan(degrees)) return degrees;
  return ShortestReadAs(nearest * kRadiansPerDegree, nearest);
}

}  // namespace orvane
