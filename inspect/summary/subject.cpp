#include "inspect/summary/subject.h"

#include "formats/text/numbers.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr std::size_t kY = 1;
constexpr std::size_t kZ = 2;

// Whether its lowest point along `axis` stays near 0, for a subject as tall as that.
bool StandsOnFloor(const Subject& subject, std::size_t axis, double height) {
  constexpr double kBelow = 0.1;
  constexpr double kAbove = 0.15;
  constexpr double kSteady = 0.1;
  return subject.bounds.least[axis] >= -kBelow * height &&
         subject.bounds.least[axis] <= kAbove * height &&
         subject.floor_change[axis] <= kSteady * height;
}

// Whether it seems to stand along `axis`, and not along the `other` of Y and Z.
bool SeemsToStandAlong(const Subject& subject, std::size_t axis, std::size_t other) {
  constexpr std::size_t kPointsOfABody = 8;
  constexpr double kLongerThanAlongX = 1.2;
  constexpr double kLongerThanAlongOther = 1.5;
  const double height = subject.extent[axis];
  return subject.points >= kPointsOfABody && height > 0.0 &&
         height >= kLongerThanAlongX * subject.extent[0] &&
         height >= kLongerThanAlongOther * subject.extent[other] &&
         StandsOnFloor(subject, axis, height) && !StandsOnFloor(subject, other, height);
}

}  // namespace

bool SeemsToStandAlongZ(const Subject& subject) { return SeemsToStandAlong(subject, kZ, kY); }

bool SeemsToStandAlongY(const Subject& subject) { return SeemsToStandAlong(subject, kY, kZ); }

double HeightOf(const Subject& subject) {
  return subject.extent[SeemsToStandAlongZ(subject) ? kZ : kY];
}

double InMeters(double length, std::uint32_t length_unit) {
  constexpr double kMetersPerMillimeter = 0.001;
  return length * LengthFactor(length_unit, kMillimeters) * kMetersPerMillimeter;
}

namespace {

// So small a number would else be 0.
std::string Briefly(double number) { return FormatDouble(number, number < 0.095 ? 2 : 1); }

}  // namespace

std::string DescribeSubject(const Subject& subject, std::uint32_t length_unit,
                            const std::optional<double>& seconds) {
  std::string text = FormatDouble(InMeters(HeightOf(subject), length_unit), 2) + " m tall, moves " +
                     Briefly(InMeters(subject.way, length_unit)) + " m";
  if (seconds) text += ", " + Briefly(*seconds) + " s";
  return text;
}

std::string DescribeHeights(const Bounds& bounds, std::uint32_t length_unit) {
  const bool is_long = LengthFactor(length_unit, kMillimeters) > 100.0;  // as meters are
  const int decimals = is_long ? 2 : 0;
  return FormatDouble(bounds.least[kZ], decimals) + " to " +
         FormatDouble(bounds.most[kZ], decimals) + " " +
         std::string(CalibrationUnitsName(length_unit));
}

}  // namespace orvane
