#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/mapping/marker_places.h"
#include "inspect/mapping/placed_marker.h"

// What is found out about the markers of a body, part by part: which of them plays which standard
// marker's role, and which parts are left out. Lengths are those of MarkerPlaces.

namespace orvane {

struct Side {
  char letter;       // that names of standard markers begin with
  double sign;       // of what is to the left
  const char* word;  // "left"
};

inline constexpr Side kLeftSide{'L', 1.0, "left"};
inline constexpr Side kRightSide{'R', -1.0, "right"};

// Where to look for markers: heights, and how far from the middle of the body.
struct Region {
  double lowest;
  double highest;
  double inner;  // to either side; below 0 is beyond the middle
  double outer;
};

class PlaceBoard {
 public:
  explicit PlaceBoard(const MarkerPlaces& places) : places_(places) {}

  [[nodiscard]] const MarkerPlaces& Places() const { return places_; }

  // Those in the region on one side, or on both sides, that have no role yet.
  [[nodiscard]] std::vector<std::size_t> MarkersIn(const Region& region, const Side& side) const;
  [[nodiscard]] std::vector<std::size_t> MarkersIn(const Region& region) const;

  void Give(const std::string& standard, std::size_t marker, const std::string& place) {
    placed_.push_back({standard, marker, place});
  }
  // "LFHD" and "left" for the side and "FHD".
  void Give(const Side& side, const std::string& standard, std::size_t marker,
            const std::string& place) {
    Give(side.letter + standard, marker, place);
  }
  void LeaveOut(const std::string& part, const std::string& reason) {
    unsure_.push_back({part, reason});
  }
  // Leaves out what was given, if it was, for `reason`.
  void TakeBack(const std::string& standard, const std::string& reason);

  [[nodiscard]] std::optional<std::size_t> MarkerOf(std::string_view standard) const;
  [[nodiscard]] std::optional<std::size_t> MarkerOf(const Side& side,
                                                    const std::string& standard) const {
    return MarkerOf(side.letter + standard);
  }
  [[nodiscard]] const std::vector<PlacedMarker>& Placed() const { return placed_; }
  [[nodiscard]] const std::vector<UnsurePlace>& Unsure() const { return unsure_; }

 private:
  [[nodiscard]] bool HasRole(std::size_t marker) const;

  const MarkerPlaces& places_;
  std::vector<PlacedMarker> placed_;
  std::vector<UnsurePlace> unsure_;
};

// How far a marker is from the middle, to the side.
[[nodiscard]] inline double Outward(const MarkerPlaces& places, const Side& side,
                                    std::size_t marker) {
  return side.sign * places.At(marker).left;
}

// Whether two markers are mirrored: their heights, their ways forward and their distances from the
// middle differ by no more than `tolerance`.
[[nodiscard]] bool AreMirrored(const MarkerPlaces& places, std::size_t left, std::size_t right,
                               double tolerance);

// "1 marker where CLAV and STRN belong"
[[nodiscard]] std::string CountReason(std::size_t found, const std::string& expected);

}  // namespace orvane
