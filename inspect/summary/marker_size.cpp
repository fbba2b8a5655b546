#include "inspect/summary/marker_size.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr double kPartOfSpread = 0.015;
constexpr double kSizeWithoutSpread = 10.0;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct FrameBox {
  TRCPosition least{kInfinity, kInfinity, kInfinity};
  TRCPosition most{-kInfinity, -kInfinity, -kInfinity};

  void Include(const TRCPosition& position) {
    least = {std::min(least.x, position.x), std::min(least.y, position.y),
             std::min(least.z, position.z)};
    most = {std::max(most.x, position.x), std::max(most.y, position.y),
            std::max(most.z, position.z)};
  }

  // Negative when nothing is in it.
  [[nodiscard]] double LongestSide() const {
    return std::max({most.x - least.x, most.y - least.y, most.z - least.z});
  }
};

FrameBox BoxOf(const TRCDocument& document, std::size_t frame) {
  FrameBox box;
  for (const TRCMarker& marker : document.markers()) {
    TRCPosition position;
    const bool is_present = marker.GetSample(frame, position.x, position.y, position.z);
    if (is_present && std::isfinite(position.x + position.y + position.z)) box.Include(position);
  }
  return box;
}

// In the unit of the document; 0 when nothing is measured.
double Spread(const TRCDocument& document) {
  std::vector<double> sides;
  std::size_t frames = 0;
  for (const TRCMarker& marker : document.markers()) {
    frames = std::max(frames, marker.SampleCount());
  }
  for (std::size_t frame = 0; frame < frames; ++frame) {
    const double side = BoxOf(document, frame).LongestSide();
    if (side >= 0.0) sides.push_back(side);
  }
  if (sides.empty()) return 0.0;
  const auto middle = sides.begin() + static_cast<std::ptrdiff_t>(sides.size() / 2);
  std::nth_element(sides.begin(), middle, sides.end());
  return *middle;
}

// `figure` times ten to the power of `exponent`, correctly rounded.
double Times(double figure, int exponent) {
  return exponent < 0 ? figure / std::pow(10.0, -exponent) : figure * std::pow(10.0, exponent);
}

}  // namespace

double ChooseMarkerSize(const TRCDocument& document, double scale) {
  const auto unit = static_cast<std::uint32_t>(document.Units());
  const double size =
      kPartOfSpread * Spread(document) * LengthFactor(unit, kMillimeters) * std::abs(scale);
  return std::isnormal(size) ? RoundSize(size) : kSizeWithoutSpread;
}

double RoundSize(double size) {
  constexpr std::array<double, 5> kFigures = {1.0, 2.0, 2.5, 5.0, 10.0};
  const int exponent = static_cast<int>(std::floor(std::log10(size)));
  const auto distance = [size, exponent](double figure) {
    return std::abs(std::log(size / Times(figure, exponent)));
  };
  return Times(*std::min_element(
                   kFigures.begin(), kFigures.end(),
                   [&](double left, double right) { return distance(left) < distance(right); }),
               exponent);
}

}  // namespace orvane
