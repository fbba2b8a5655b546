#include <algorithm>
#include <cmath>

#include "inspect/mapping/body_parts.h"

namespace orvane {
namespace {

using Markers = std::vector<std::size_t>;

constexpr Region kArm{0.36, 0.78, 0.06, 0.5};

std::string Arm(const Side& side, const char* part) {
  return std::string("the ") + side.word + " " + part;
}

// Those at such a distance from `from`, which they keep.
Markers Around(const MarkerPlaces& places, const Markers& markers, std::size_t from, double least,
               double most, double most_spread) {
  Markers around;
  for (const std::size_t marker : markers) {
    const auto distance = places.Between(from, marker);
    if (distance.spread <= most_spread && least <= distance.median && distance.median <= most) {
      around.push_back(marker);
    }
  }
  return around;
}

// Hand and wrist of one arm, by how far they are from its elbow.
struct Hand {
  Markers wrist;
  Markers beyond;
};

// The distance from `marker` to the middle of the elbow.
double FromElbow(const MarkerPlaces& places, const Markers& elbow, std::size_t marker) {
  double sum = 0;
  for (const std::size_t of_elbow : elbow) sum += places.Between(of_elbow, marker).median;
  return sum / static_cast<double>(elbow.size());
}

Markers ForeArm(const MarkerPlaces& places, const Markers& markers, const Markers& elbow,
                double upper_arm) {
  constexpr double kLeast = 0.65;
  constexpr double kMost = 1.5;
  constexpr double kRigid = 0.02;
  Markers fore_arm = markers;
  for (const std::size_t of_elbow : elbow) {
    fore_arm = Around(places, fore_arm, of_elbow, kLeast * upper_arm, kMost * upper_arm, kRigid);
  }
  std::sort(fore_arm.begin(), fore_arm.end(), [&](std::size_t one, std::size_t other) {
    return FromElbow(places, elbow, one) < FromElbow(places, elbow, other);
  });
  return fore_arm;
}

// How far `to` is behind and outside of `from`.
struct Outside {
  double back;
  double out;
};

Outside OutsideOf(const MarkerPlaces& places, const Side& side, std::size_t from, std::size_t to) {
  const BodyPoint offset = places.Offset(from, to);
  return {-offset.forward, side.sign * offset.left};
}

void GiveElbow(PlaceBoard& board, const Side& side, const Markers& elbow, const Markers& wrist) {
  constexpr double kOutward = 0.6;  // of their distance
  constexpr double kOuterOrBack = 0.025;
  const MarkerPlaces& places = board.Places();
  if (elbow.size() == 2) {
    const bool is_first = Outward(places, side, elbow[0]) > Outward(places, side, elbow[1]);
    const std::size_t outer = elbow[is_first ? 0 : 1];
    const std::size_t inner = elbow[is_first ? 1 : 0];
    const auto distance = places.Between(inner, outer);
    if (OutsideOf(places, side, inner, outer).out < kOutward * distance.median) {
      return board.LeaveOut(Arm(side, "elbow"),
                            "the two are in front of each other, so that none is the outer one");
    }
    board.Give(side, "ELB", outer, std::string("outer of the two at the ") + side.word + " elbow");
    board.Give(side, "ILB", inner, std::string("inner of the two at the ") + side.word + " elbow");
    return;
  }
  const BodyPoint& shoulder = places.At(*board.MarkerOf(side, "SHO"));
  const BodyPoint& at = places.At(elbow[0]);
  double back = 0;
  double out = 0;
  for (const std::size_t of_wrist : wrist) {
    const BodyPoint& end = places.At(of_wrist);
    const double share = (shoulder.up - at.up) / (shoulder.up - end.up);
    back += (shoulder.forward + share * (end.forward - shoulder.forward) - at.forward) / 2;
    out += side.sign * (at.left - shoulder.left - share * (end.left - shoulder.left)) / 2;
  }
  if (back < 0 || out < -0.01 || back + out < kOuterOrBack) {
    return board.LeaveOut(Arm(side, "elbow"), "one marker, which may be the inner one");
  }
  board.Give(side, "ELB", elbow[0], std::string("the only marker of the ") + side.word + " elbow");
}

}  // namespace

void FindArm(PlaceBoard& board, const Side& side) {
  constexpr double kFurther = 0.025;
  constexpr double kAlike = 0.02;
  constexpr double kAhead = 0.6;  // of their distance
  const MarkerPlaces& places = board.Places();
  const auto shoulder = board.MarkerOf(side, "SHO");
  if (!shoulder) return board.LeaveOut(Arm(side, "arm"), "its shoulder is not sure");
  const Markers arm = board.MarkersIn(kArm, side);
  const Markers elbow = Around(places, arm, *shoulder, 0.14, 0.225, 0.03);
  if (elbow.empty() || elbow.size() > 2 ||
      (elbow.size() == 2 && Around(places, {elbow[0]}, elbow[1], 0.03, 0.085, 0.015).empty())) {
    return board.LeaveOut(Arm(side, "arm"), CountReason(elbow.size(), "one or two of the elbow"));
  }
  const Markers fore_arm = ForeArm(places, arm, elbow, places.Between(*shoulder, elbow[0]).median);
  if (fore_arm.size() != 2 && fore_arm.size() != 3) {
    return board.LeaveOut(Arm(side, "arm"),
                          CountReason(fore_arm.size(), "two of the wrist and one of the hand"));
  }
  const auto from_elbow = [&](std::size_t index) {
    return FromElbow(places, elbow, fore_arm[index]);
  };
  const auto between = places.Between(fore_arm[0], fore_arm[1]);
  const BodyPoint offset = places.Offset(fore_arm[0], fore_arm[1]);
  if (from_elbow(1) - from_elbow(0) > kAlike || between.median < 0.025 || between.median > 0.07 ||
      between.spread > 0.015 || std::abs(offset.forward) < kAhead * between.median) {
    return board.LeaveOut(Arm(side, "wrist"), "the two of it are not sure");
  }
  if (fore_arm.size() == 3 && from_elbow(2) - from_elbow(1) < kFurther) {
    return board.LeaveOut(Arm(side, "wrist"), "three markers as far from the elbow");
  }
  const bool is_second_ahead = offset.forward > 0;
  GiveElbow(board, side, elbow, {fore_arm[0], fore_arm[1]});
  board.Give(side, "WRA", fore_arm[is_second_ahead ? 1 : 0],
             std::string("front one of the two at the ") + side.word + " wrist");
  board.Give(side, "WRB", fore_arm[is_second_ahead ? 0 : 1],
             std::string("back one of the two at the ") + side.word + " wrist");
  if (fore_arm.size() == 3) {
    board.Give(side, "FIN", fore_arm[2],
               std::string("beyond the two of the ") + side.word + " wrist");
  }
}

}  // namespace orvane
