#include "inspect/check/plausibility.h"

#include <algorithm>
#include <cmath>

#include "formats/text/numbers.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr std::size_t kPointsOfABody = 8;
constexpr double kTallest = 5.0;    // meters: somebody on a ladder
constexpr double kSmallest = 0.05;  // meters: less than a face
constexpr double kPoint = 0.0005;   // meters: all of it in one place
constexpr double kFarthest = 1000.0;

double FarthestCoordinate(const Point& point) {
  return std::max({std::abs(point[0]), std::abs(point[1]), std::abs(point[2])});
}

}  // namespace

std::optional<FindingWords> WordsOfOddSize(const std::optional<Subject>& subject,
                                           std::uint32_t length_unit) {
  if (!subject || subject->points < kPointsOfABody) return std::nullopt;
  const double height = InMeters(HeightOf(*subject), length_unit);
  const double largest = InMeters(FarthestCoordinate(subject->extent), length_unit);
  if (height <= kTallest && (largest >= kSmallest || largest < kPoint)) return std::nullopt;
  const double size = height > kTallest ? height : largest;
  const std::string unit(CalibrationUnitsName(length_unit));
  return FindingWords{FormatDouble(size, size < 1.0 ? 4 : 1) + " m", "the size of a body",
                      "Lengths are taken in " + unit + " all the same; is that their unit?"};
}

Horizon::Horizon(std::uint32_t length_unit) : distance_(kFarthest / InMeters(1.0, length_unit)) {}

FindingWords WordsOfOutOfSight(const std::string& name, const Point& point,
                               std::uint32_t length_unit) {
  const double kilometers = InMeters(FarthestCoordinate(point), length_unit) / 1000.0;
  return {Quote(name) + " " + FormatDouble(kilometers, 0) + " km away",
          "a position within 1 km, or none", "It is taken for a position all the same."};
}

}  // namespace orvane
