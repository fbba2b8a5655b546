#include "inspect/mapping/place_board.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "formats/text/numbers.h"

namespace orvane {

std::vector<std::size_t> PlaceBoard::MarkersIn(const Region& region, const Side& side) const {
  std::vector<std::size_t> markers;
  for (std::size_t marker = 0; marker < places_.Count(); ++marker) {
    if (!places_.HasPlace(marker) || HasRole(marker)) continue;
    const double up = places_.At(marker).up;
    const double outward = Outward(places_, side, marker);
    if (up < region.lowest || up > region.highest) continue;
    if (outward < region.inner || outward > region.outer) continue;
    markers.push_back(marker);
  }
  return markers;
}

std::vector<std::size_t> PlaceBoard::MarkersIn(const Region& region) const {
  return MarkersIn({region.lowest, region.highest, -region.outer, region.outer}, kLeftSide);
}

void PlaceBoard::TakeBack(const std::string& standard, const std::string& reason) {
  const auto is_it = [&](const PlacedMarker& placed) { return placed.standard == standard; };
  if (std::erase_if(placed_, is_it) > 0) LeaveOut(standard, reason);
}

std::optional<std::size_t> PlaceBoard::MarkerOf(std::string_view standard) const {
  for (const PlacedMarker& placed : placed_) {
    if (placed.standard == standard) return placed.marker;
  }
  return std::nullopt;
}

bool PlaceBoard::HasRole(std::size_t marker) const {
  return std::any_of(placed_.begin(), placed_.end(),
                     [marker](const PlacedMarker& placed) { return placed.marker == marker; });
}

bool AreMirrored(const MarkerPlaces& places, std::size_t left, std::size_t right,
                 double tolerance) {
  const BodyPoint& one = places.At(left);
  const BodyPoint& other = places.At(right);
  return std::abs(one.left + other.left) <= tolerance && std::abs(one.up - other.up) <= tolerance &&
         std::abs(one.forward - other.forward) <= tolerance;
}

std::string CountReason(std::size_t found, const std::string& expected) {
  const std::string count = FormatInt(static_cast<std::int64_t>(found));
  return (found == 0 ? "no marker" : count + (found == 1 ? " marker" : " markers")) + " where " +
         expected + " belong";
}

}  // namespace orvane
