#include <algorithm>
#include <cmath>

#include "inspect/mapping/body_parts.h"

namespace orvane {
namespace {

using Markers = std::vector<std::size_t>;

std::string Leg(const Side& side, const char* part) {
  return std::string("the ") + side.word + " " + part;
}

// Those that keep their distances to half of the others.
Markers RigidOnes(const MarkerPlaces& places, const Markers& markers) {
  constexpr double kRigid = 0.03;
  Markers rigid;
  for (const std::size_t one : markers) {
    std::size_t partners = 0;
    for (const std::size_t other : markers) {
      if (one != other && places.AreRigid(one, other, kRigid)) ++partners;
    }
    if (2 * partners >= markers.size() - 1) rigid.push_back(one);
  }
  return rigid;
}

// The markers of a foot, by where they are from its hindmost one.
struct Foot {
  Markers ankle;
  Markers front;  // from the outer one to the inner one
  Markers others;
};

Foot FootOf(const MarkerPlaces& places, const Side& side, std::size_t heel,
            const Markers& markers) {
  constexpr double kAhead = 0.075;
  constexpr double kAnkleAhead = 0.015;
  constexpr double kAnkleAbove = 0.012;
  Foot foot;
  for (const std::size_t marker : markers) {
    if (marker == heel) continue;
    const BodyPoint from_heel = places.Offset(heel, marker);
    if (from_heel.forward >= kAhead) {
      foot.front.push_back(marker);
    } else if (from_heel.forward >= kAnkleAhead &&
               places.LowestOf(marker) >= places.LowestOf(heel) + kAnkleAbove) {
      foot.ankle.push_back(marker);
    } else {
      foot.others.push_back(marker);
    }
  }
  for (Markers* part : {&foot.front, &foot.ankle}) {
    std::sort(part->begin(), part->end(), [&](std::size_t one, std::size_t other) {
      return Outward(places, side, one) > Outward(places, side, other);
    });
  }
  return foot;
}

// Whether the heel comes down as far as what is in front does.
bool TouchesFloor(const MarkerPlaces& places, std::size_t heel, const Markers& front) {
  constexpr double kAbove = 0.018;
  return std::any_of(front.begin(), front.end(), [&](std::size_t marker) {
    return places.LowestOf(heel) <= places.LowestOf(marker) + kAbove;
  });
}

void GiveAnkle(PlaceBoard& board, const Side& side, std::size_t heel, const Markers& ankle) {
  constexpr double kOutOfHeel = 0.01;
  constexpr double kApart = 0.035;
  const MarkerPlaces& places = board.Places();
  const auto out = [&](std::size_t from, std::size_t to) {
    return side.sign * places.Offset(from, to).left;
  };
  if (ankle.empty() || ankle.size() > 2) {
    return board.LeaveOut(Leg(side, "ankle"), CountReason(ankle.size(), "one or two"));
  }
  if (out(heel, ankle[0]) < kOutOfHeel || (ankle.size() == 2 && out(ankle[1], ankle[0]) < kApart)) {
    return board.LeaveOut(Leg(side, "ankle"), "no marker that is surely the outer one");
  }
  board.Give(side, "ANK", ankle[0],
             std::string("at the outer side of the ") + side.word + " ankle, above the heel");
}

void GiveToes(PlaceBoard& board, const Side& side, const Foot& foot) {
  constexpr double kForemost = 0.018;
  constexpr double kApart = 0.03;
  const MarkerPlaces& places = board.Places();
  if (foot.front.size() != 3 || !foot.others.empty()) {
    return board.LeaveOut(Leg(side, "toes"),
                          CountReason(foot.front.size() + foot.others.size(), "three"));
  }
  const std::size_t outer = foot.front[0];
  const std::size_t toe = foot.front[1];
  const std::size_t inner = foot.front[2];
  if (places.Offset(outer, toe).forward < kForemost ||
      places.Offset(inner, toe).forward < kForemost ||
      side.sign * places.Offset(inner, outer).left < kApart) {
    return board.LeaveOut(Leg(side, "toes"), "the one in the middle is not the foremost for sure");
  }
  const std::string of_foot = std::string(" of the three in front of the ") + side.word + " foot";
  board.Give(side, "MT5", outer, "outer" + of_foot);
  board.Give(side, "MTI", inner, "inner" + of_foot);
  board.Give(side, "TOE", toe, "foremost" + of_foot);
}

void FindFoot(PlaceBoard& board, const Side& side) {
  constexpr Region kFoot{-0.05, 0.1, 0, 0.2};
  constexpr double kHindmost = 0.025;
  const MarkerPlaces& places = board.Places();
  Markers markers = RigidOnes(places, board.MarkersIn(kFoot, side));
  if (markers.size() < 3) {
    return board.LeaveOut(Leg(side, "foot"), CountReason(markers.size(), "at least three"));
  }
  const std::size_t any = markers[0];
  std::sort(markers.begin(), markers.end(), [&](std::size_t one, std::size_t other) {
    return places.Offset(any, one).forward < places.Offset(any, other).forward;
  });
  const std::size_t heel = markers[0];
  const Foot foot = FootOf(places, side, heel, markers);
  if (places.Offset(heel, markers[1]).forward < kHindmost || foot.ankle.empty() ||
      !TouchesFloor(places, heel, foot.front)) {
    return board.LeaveOut(Leg(side, "foot"), "no marker is the heel's for sure");
  }
  board.Give(side, "HEL", heel, std::string("hindmost of the ") + side.word + " foot");
  GiveAnkle(board, side, heel, foot.ankle);
  GiveToes(board, side, foot);
}

// Of one side: front and back of the pelvis, and about where the hip is from the middle.
struct Hip {
  std::size_t front;
  std::size_t back;
  double up;
  double out;
};

std::optional<Hip> HipOf(const PlaceBoard& board, const Side& side) {
  constexpr double kBelow = 0.06;
  constexpr double kOut = 0.37;  // of the width of the pelvis
  const MarkerPlaces& places = board.Places();
  const auto left = board.MarkerOf("LFWT");
  const auto right = board.MarkerOf("RFWT");
  const auto back = board.MarkerOf(side, "BWT");
  if (!left || !right || !back) return std::nullopt;
  const double up = (places.At(*left).up + places.At(*right).up) / 2 - kBelow;
  const double width = places.At(*left).left - places.At(*right).left;
  return Hip{side.sign > 0 ? *left : *right, *back, up, kOut * width};
}

Markers KneesOf(const PlaceBoard& board, const Side& side, const Hip& hip, std::size_t ankle) {
  constexpr Region kKnee{0.18, 0.4, -0.03, 0.25};
  constexpr double kRigidShank = 0.02;
  constexpr double kRigidThigh = 0.06;  // of the sum of two
  constexpr double kLeastShare = 0.42;  // of the way up from the ankle to the hip
  constexpr double kMostShare = 0.58;
  const MarkerPlaces& places = board.Places();
  const double foot = places.At(ankle).up;
  Markers knees;
  for (const std::size_t marker : board.MarkersIn(kKnee, side)) {
    const double share = (places.At(marker).up - foot) / (hip.up - foot);
    if (share < kLeastShare || share > kMostShare) continue;
    if (!places.AreRigid(marker, ankle, kRigidShank)) continue;
    if (places.SpreadOfSum(marker, hip.front, hip.back) > kRigidThigh) continue;
    knees.push_back(marker);
  }
  std::sort(knees.begin(), knees.end(), [&](std::size_t one, std::size_t other) {
    return Outward(places, side, one) > Outward(places, side, other);
  });
  return knees;
}

void FindKnee(PlaceBoard& board, const Side& side) {
  constexpr double kApart = 0.04;
  constexpr double kOutOfHip = 0.008;
  const MarkerPlaces& places = board.Places();
  const auto ankle = board.MarkerOf(side, "ANK");
  const auto hip = HipOf(board, side);
  if (!ankle || !hip) return board.LeaveOut(Leg(side, "knee"), "ankle and pelvis are not sure");
  const Markers knees = KneesOf(board, side, *hip, *ankle);
  if (knees.empty() || knees.size() > 2) {
    return board.LeaveOut(Leg(side, "knee"), CountReason(knees.size(), "one or two"));
  }
  if (Outward(places, side, knees[0]) < hip->out + kOutOfHip) {
    return board.LeaveOut(Leg(side, "knee"), "no marker that is surely the outer one");
  }
  if (knees.size() == 2) {
    if (side.sign * places.Offset(knees[1], knees[0]).left < kApart) {
      return board.LeaveOut(Leg(side, "knee"), "the two are too near each other");
    }
    board.Give(side, "KNE", knees[0],
               std::string("outer of the two at the ") + side.word + " knee");
    board.Give(side, "KNI", knees[1],
               std::string("inner of the two at the ") + side.word + " knee");
  } else {
    board.Give(side, "KNE", knees[0],
               std::string("the only marker of the ") + side.word + " knee, at its outer side");
  }
}

}  // namespace

void FindLeg(PlaceBoard& board, const Side& side) {
  FindFoot(board, side);
  FindKnee(board, side);
}

bool FacesItsWay(const PlaceBoard& board) {
  constexpr double kRare = 0.05;     // of the frames
  constexpr double kFurther = 1.25;  // times as far
  bool is_seen = false;
  for (const Side& side : {kLeftSide, kRightSide}) {
    // Nothing else is so long in front of the ankle, and so short behind it.
    if (board.MarkerOf(side, "ANK") && board.MarkerOf(side, "TOE")) is_seen = true;
    const auto knee = board.MarkerOf(side, "KNE");
    const auto ankle = board.MarkerOf(side, "ANK");
    if (!knee || !ankle) continue;
    const double behind = -board.Places().ForwardOffset(*knee, *ankle, kRare);
    const double ahead = board.Places().ForwardOffset(*knee, *ankle, 1 - kRare);
    if (behind < kFurther * ahead) return false;
    is_seen = true;
  }
  return is_seen;
}

}  // namespace orvane
