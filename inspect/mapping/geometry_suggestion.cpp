#include "inspect/mapping/geometry_suggestion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

#include "formats/mnm/standard_markers.h"
#include "inspect/mapping/body_parts.h"

// What the body is seen from, and its measures, is told in walk_tracks.h and marker_places.h, and
// how its parts are known in body_parts.h.
namespace orvane {
namespace {

constexpr std::array kWithPartner = {"FHD", "BHD", "SHO", "ELB", "ILB", "WRA", "WRB", "FIN", "FWT",
                                     "BWT", "KNE", "KNI", "ANK", "HEL", "MT5", "MTI", "TOE"};

// The distances of these are the same on both sides.
constexpr std::array<std::pair<const char*, const char*>, 8> kLengths = {{{"SHO", "ELB"},
                                                                          {"ELB", "WRB"},
                                                                          {"WRB", "FIN"},
                                                                          {"SHO", "FWT"},
                                                                          {"FHD", "SHO"},
                                                                          {"KNE", "ANK"},
                                                                          {"ANK", "HEL"},
                                                                          {"HEL", "TOE"}}};

constexpr std::array kInTheMiddle = {"C7", "CLAV", "STRN", "T10", "SACR"};
constexpr std::array kOfHeadAndTrunk = {"FHD", "BHD", "SHO", "FWT", "BWT"};

// As high, and as far to the side.
bool AreAlike(const MarkerPlaces& places, std::size_t left, std::size_t right) {
  constexpr double kAsHigh = 0.03;
  constexpr double kAsFarOut = 0.06;
  return std::abs(places.At(left).up - places.At(right).up) <= kAsHigh &&
         std::abs(places.At(left).left + places.At(right).left) <= kAsFarOut;
}

// Both partners or none.
void RequirePartners(PlaceBoard& board) {
  for (const std::string standard : kWithPartner) {
    const auto left = board.MarkerOf(kLeftSide, standard);
    const auto right = board.MarkerOf(kRightSide, standard);
    if (left && right && AreAlike(board.Places(), *left, *right)) continue;
    const std::string reason = left && right ? "left and right are not alike"
                                             : "its partner on the other side is not sure";
    for (const Side& side : {kLeftSide, kRightSide}) {
      board.TakeBack(side.letter + standard, reason);
    }
  }
}

bool HaveEqualLengths(const PlaceBoard& board, const std::string& from, const std::string& to) {
  constexpr double kTolerance = 0.035;
  std::array<double, 2> lengths{};
  for (const Side& side : {kLeftSide, kRightSide}) {
    const auto one = board.MarkerOf(side, from);
    const auto other = board.MarkerOf(side, to);
    if (!one || !other) return true;
    lengths[side.sign > 0 ? 0 : 1] = board.Places().Between(*one, *other).median;
  }
  return std::abs(lengths[0] - lengths[1]) <= kTolerance;
}

// As far from a marker in the middle of the body.
bool AreAsFarFrom(const PlaceBoard& board, const std::string& middle, const std::string& standard) {
  constexpr double kTolerance = 0.04;
  const auto from = board.MarkerOf(middle);
  const auto left = board.MarkerOf(kLeftSide, standard);
  const auto right = board.MarkerOf(kRightSide, standard);
  if (!from || !left || !right) return true;
  return std::abs(board.Places().Between(*from, *left).median -
                  board.Places().Between(*from, *right).median) <= kTolerance;
}

void RequireSymmetry(PlaceBoard& board) {
  const std::string reason = "its distances are not the same on both sides";
  const auto take_back = [&](const std::string& standard) {
    for (const Side& side : {kLeftSide, kRightSide}) {
      board.TakeBack(side.letter + standard, reason);
    }
  };
  for (const std::string standard : kOfHeadAndTrunk) {
    for (const std::string middle : kInTheMiddle) {
      if (!AreAsFarFrom(board, middle, standard)) take_back(standard);
    }
  }
  for (const auto& [from, to] : kLengths) {
    if (HaveEqualLengths(board, from, to)) continue;
    take_back(from);
    take_back(to);
  }
}

void FindAll(PlaceBoard& board) {
  FindHead(board);
  FindShoulders(board);
  FindTrunk(board);
  FindPelvis(board);
  for (const Side& side : {kLeftSide, kRightSide}) FindArm(board, side);
  for (const Side& side : {kLeftSide, kRightSide}) FindLeg(board, side);
}

void Answer(const PlaceBoard& board, std::size_t markers, GeometrySuggestion& result) {
  std::set<std::size_t> used;
  for (std::size_t step = 0; step < kMarkerSteps; ++step) {
    const MarkerStep& wanted = MarkerStepAt(step, {});
    for (std::size_t index = 0; index < wanted.Count(); ++index) {
      const std::string standard(wanted.markers[index].name);
      const auto& placed = board.Placed();
      const auto found =
          std::find_if(placed.begin(), placed.end(),
                       [&](const PlacedMarker& marker) { return marker.standard == standard; });
      if (found != placed.end()) {
        result.sure.push_back(*found);
        used.insert(found->marker);
      } else if (!wanted.may_be_skipped) {
        result.missing.push_back(standard);
      }
    }
  }
  for (std::size_t marker = 0; marker < markers; ++marker) {
    if (!used.contains(marker)) result.without_role.push_back(marker);
  }
}

}  // namespace

GeometrySuggestion SuggestByGeometry(const TRCDocument& document) {
  GeometrySuggestion result;
  const MarkerPlaces places(TrackWalk(document));
  result.problem = places.Problem();
  if (!result.problem.empty()) return result;
  PlaceBoard board(places);
  FindAll(board);
  result.unsure = board.Unsure();
  if (!FacesItsWay(board)) {
    result.problem = "No knee and ankle in it show that the body faces the way it goes";
    return result;
  }
  RequireSymmetry(board);
  RequirePartners(board);
  result.unsure = board.Unsure();
  Answer(board, document.markers().size(), result);
  return result;
}

}  // namespace orvane
