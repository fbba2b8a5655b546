#include <algorithm>
#include <cmath>
#include <utility>

#include "inspect/mapping/body_parts.h"

namespace orvane {
namespace {

constexpr double kMirrored = 0.035;
constexpr double kRigidTrunk = 0.03;
constexpr double kRigidShoulder = 0.05;
constexpr double kRigidPelvis = 0.02;

using Markers = std::vector<std::size_t>;

// What is in the middle of the trunk, in front and at the back.
struct Middle {
  Markers front;
  Markers back;  // both from the top down
};

Middle MiddleOf(const PlaceBoard& board, const Region& region) {
  constexpr double kThickness = 0.05;
  const MarkerPlaces& places = board.Places();
  Markers markers = board.MarkersIn(region);
  const auto forward = [&](std::size_t marker) { return places.At(marker).forward; };
  std::sort(markers.begin(), markers.end(),
            [&](std::size_t one, std::size_t other) { return forward(one) < forward(other); });
  std::size_t begin_of_front = markers.size();
  double widest = kThickness;
  for (std::size_t index = 1; index < markers.size(); ++index) {
    const double gap = forward(markers[index]) - forward(markers[index - 1]);
    if (gap < widest) continue;
    widest = gap;
    begin_of_front = index;
  }
  Middle middle;
  if (begin_of_front == markers.size()) return middle;
  const auto divide = markers.begin() + static_cast<std::ptrdiff_t>(begin_of_front);
  middle.back.assign(markers.begin(), divide);
  middle.front.assign(divide, markers.end());
  for (Markers* half : {&middle.front, &middle.back}) {
    std::sort(half->begin(), half->end(), [&](std::size_t one, std::size_t other) {
      return places.At(one).up > places.At(other).up;
    });
  }
  return middle;
}

// Whether `lower` is so far below `upper`, and stays there.
bool IsBelow(const MarkerPlaces& places, std::size_t upper, std::size_t lower, double least,
             double most) {
  const double below = places.At(upper).up - places.At(lower).up;
  return least <= below && below <= most && places.AreRigid(upper, lower, kRigidTrunk);
}

void FindSpine(PlaceBoard& board, const Markers& back) {
  constexpr double kBelowShoulders = 0.03;
  const MarkerPlaces& places = board.Places();
  if (back.size() != 2) {
    return board.LeaveOut("the spine", CountReason(back.size(), "C7 and T10"));
  }
  const auto left = board.MarkerOf("LSHO");
  const auto right = board.MarkerOf("RSHO");
  if (!left || !right) return board.LeaveOut("the spine", "the shoulders are not sure");
  const double shoulders = (places.At(*left).up + places.At(*right).up) / 2;
  if (places.At(back[0]).up < shoulders - kBelowShoulders ||
      !IsBelow(places, back[0], back[1], 0.09, 0.17)) {
    return board.LeaveOut("the spine", "two markers, but not where C7 and T10 sit");
  }
  board.Give("C7", back[0], "at the back of the neck, as high as the shoulders");
  board.Give("T10", back[1], "in the middle of the back, below that of the neck");
}

void FindChest(PlaceBoard& board, const Markers& front) {
  const MarkerPlaces& places = board.Places();
  if (front.size() != 2) {
    return board.LeaveOut("the chest", CountReason(front.size(), "CLAV and STRN"));
  }
  if (places.At(front[0]).up < 0.78 || !IsBelow(places, front[0], front[1], 0.055, 0.12)) {
    return board.LeaveOut("the chest", "two markers, but not where CLAV and STRN sit");
  }
  board.Give("CLAV", front[0], "the upper of two in the middle of the chest");
  board.Give("STRN", front[1], "the lower of two in the middle of the chest");
}

// Mirrored markers of a region.
std::vector<std::pair<std::size_t, std::size_t>> Pairs(const MarkerPlaces& places,
                                                       const Markers& left, const Markers& right) {
  std::vector<std::pair<std::size_t, std::size_t>> pairs;
  for (const std::size_t one : left) {
    for (const std::size_t other : right) {
      if (AreMirrored(places, one, other, kMirrored)) pairs.emplace_back(one, other);
    }
  }
  return pairs;
}

// The markers of the pelvis by where they are; a region that is not filled as expected is empty.
struct Pelvis {
  Markers front;
  Markers back;
  Markers middle;  // at the back
};

Pelvis PelvisOf(const MarkerPlaces& places, const Markers& markers) {
  constexpr double kShare = 0.25;  // of the depth, from its middle
  constexpr double kMiddle = 0.015;
  constexpr double kBackInner = 0.02;
  constexpr double kBackOuter = 0.07;
  constexpr double kFrontInner = 0.04;
  constexpr double kLeastDepth = 0.07;
  Pelvis pelvis;
  double least = 1;
  double most = -1;
  for (const std::size_t marker : markers) {
    least = std::min(least, places.At(marker).forward);
    most = std::max(most, places.At(marker).forward);
  }
  if (most - least < kLeastDepth) return pelvis;
  for (const std::size_t marker : markers) {
    const double from_middle = places.At(marker).forward - (least + most) / 2;
    const double aside = std::abs(places.At(marker).left);
    if (from_middle > kShare * (most - least) && aside >= kFrontInner) {
      pelvis.front.push_back(marker);
    } else if (from_middle < -kShare * (most - least)) {
      if (aside <= kMiddle) pelvis.middle.push_back(marker);
      if (kBackInner <= aside && aside <= kBackOuter) pelvis.back.push_back(marker);
    }
  }
  return pelvis;
}

// Those that keep their distances to most of the others.
Markers RigidOnes(const MarkerPlaces& places, const Markers& markers) {
  Markers rigid;
  for (const std::size_t one : markers) {
    std::size_t partners = 0;
    for (const std::size_t other : markers) {
      if (one != other && places.AreRigid(one, other, kRigidPelvis)) ++partners;
    }
    if (partners >= 2) rigid.push_back(one);
  }
  return rigid;
}

void GivePair(PlaceBoard& board, const Markers& markers, const std::string& standard,
              const std::string& where) {
  const MarkerPlaces& places = board.Places();
  if (markers.size() != 2) {
    return board.LeaveOut("the pelvis, " + where, CountReason(markers.size(), "two"));
  }
  const bool is_first_left = places.At(markers[0]).left > places.At(markers[1]).left;
  const std::size_t left = markers[is_first_left ? 0 : 1];
  const std::size_t right = markers[is_first_left ? 1 : 0];
  if (!AreMirrored(places, left, right, kMirrored)) {
    return board.LeaveOut("the pelvis, " + where, "the two are not mirrored");
  }
  board.Give(kLeftSide, standard, left, "left of the two at the " + where + " of the pelvis");
  board.Give(kRightSide, standard, right, "right of the two at the " + where + " of the pelvis");
}

}  // namespace

void FindShoulders(PlaceBoard& board) {
  constexpr Region kShoulder{0.79, 0.94, 0.07, 0.17};
  const MarkerPlaces& places = board.Places();
  const Markers left = board.MarkersIn(kShoulder, kLeftSide);
  const Markers right = board.MarkersIn(kShoulder, kRightSide);
  const auto pairs = Pairs(places, left, right);
  if (left.size() != 1 || right.size() != 1 || pairs.size() != 1 ||
      !places.AreRigid(left[0], right[0], kRigidShoulder)) {
    return board.LeaveOut("the shoulders",
                          CountReason(left.size() + right.size(), "one left and one right"));
  }
  board.Give("LSHO", left[0], "the only marker of the left shoulder");
  board.Give("RSHO", right[0], "the only marker of the right shoulder");
}

void FindTrunk(PlaceBoard& board) {
  constexpr Region kMiddleOfTrunk{0.69, 0.95, 0, 0.035};
  const Middle middle = MiddleOf(board, kMiddleOfTrunk);
  FindSpine(board, middle.back);
  FindChest(board, middle.front);
}

void FindPelvis(PlaceBoard& board) {
  constexpr Region kPelvis{0.48, 0.69, 0, 0.11};
  const MarkerPlaces& places = board.Places();
  const Pelvis pelvis = PelvisOf(places, RigidOnes(places, board.MarkersIn(kPelvis)));
  GivePair(board, pelvis.front, "FWT", "front");
  GivePair(board, pelvis.back, "BWT", "back");
  if (pelvis.middle.size() == 1) {
    board.Give("SACR", pelvis.middle[0], "in the middle of the back of the pelvis");
  } else {
    board.LeaveOut("the pelvis, middle of the back", CountReason(pelvis.middle.size(), "one"));
  }
}

}  // namespace orvane
