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

struct Pair {
  std::size_t left;
  std::size_t right;
};

// Mirrored markers of a region.
std::vector<Pair> Pairs(const MarkerPlaces& places, const Markers& left, const Markers& right) {
  std::vector<Pair> pairs;
  for (const std::size_t one : left) {
    for (const std::size_t other : right) {
      if (AreMirrored(places, one, other, kMirrored)) pairs.push_back({one, other});
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

// Whether a pair is as far from the middle on both sides, but for a share of that, and from the
// other pair.
bool AreSquare(const MarkerPlaces& places, const Pair& pair, const Pair& other, double share) {
  constexpr double kTolerance = 0.02;
  const double left = places.At(pair.left).left;
  const double right = -places.At(pair.right).left;
  if (std::abs(left - right) > share * std::min(left, right)) return false;
  const auto differ = [&](std::size_t one, std::size_t from_one, std::size_t two,
                          std::size_t from_two) {
    return std::abs(places.Between(one, from_one).median - places.Between(two, from_two).median);
  };
  return differ(pair.left, other.left, pair.right, other.right) <= kTolerance &&
         differ(pair.left, other.right, pair.right, other.left) <= kTolerance;
}

// The one mirrored pair that they are; says why there is none otherwise.
std::optional<Pair> PairOf(PlaceBoard& board, const Markers& markers, const std::string& part) {
  const MarkerPlaces& places = board.Places();
  if (markers.size() != 2) {
    board.LeaveOut(part, CountReason(markers.size(), "two"));
    return std::nullopt;
  }
  Pair pair{markers[0], markers[1]};
  if (places.At(pair.left).left < places.At(pair.right).left) std::swap(pair.left, pair.right);
  if (AreMirrored(places, pair.left, pair.right, kMirrored)) return pair;
  board.LeaveOut(part, "the two are not mirrored");
  return std::nullopt;
}

void GivePair(PlaceBoard& board, const Pair& pair, const std::string& standard,
              const std::string& where) {
  board.Give(kLeftSide, standard, pair.left, "left of the two at the " + where + " of the pelvis");
  board.Give(kRightSide, standard, pair.right,
             "right of the two at the " + where + " of the pelvis");
}

// Between the two at the back, and as far from both in front.
void FindSacrum(PlaceBoard& board, const Markers& middle, const Pair& front, const Pair& back) {
  constexpr double kTolerance = 0.02;
  constexpr double kBeside = 0.02;
  const MarkerPlaces& places = board.Places();
  const std::string part = "the pelvis, middle of the back";
  if (middle.size() != 1) return board.LeaveOut(part, CountReason(middle.size(), "one"));
  const std::size_t sacrum = middle[0];
  const double difference = std::abs(places.Between(sacrum, front.left).median -
                                     places.Between(sacrum, front.right).median);
  if (difference > kTolerance || places.Offset(sacrum, back.left).left < kBeside ||
      places.Offset(back.right, sacrum).left < kBeside) {
    return board.LeaveOut(part, "one marker, not surely in the middle");
  }
  board.Give("SACR", sacrum, "in the middle of the back of the pelvis");
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
  constexpr double kAsHigh = 0.05;
  const MarkerPlaces& places = board.Places();
  Pelvis pelvis = PelvisOf(places, RigidOnes(places, board.MarkersIn(kPelvis)));
  const auto front = PairOf(board, pelvis.front, "the pelvis, front");
  if (!front) return board.LeaveOut("the pelvis, back", "its front is not sure");
  const double height = (places.At(front->left).up + places.At(front->right).up) / 2;
  for (Markers* markers : {&pelvis.back, &pelvis.middle}) {
    std::erase_if(*markers, [&](std::size_t marker) {
      return std::abs(places.At(marker).up - height) > kAsHigh;
    });
  }
  GivePair(board, *front, "FWT", "front");
  const auto back = PairOf(board, pelvis.back, "the pelvis, back");
  if (!back) return;
  // One in the middle may be taken for one of the two where there are not three.
  if (!AreSquare(places, *back, *front, pelvis.middle.empty() ? 0.3 : 0.5)) {
    return board.LeaveOut("the pelvis, back", "the two are not as far from those in front");
  }
  GivePair(board, *back, "BWT", "back");
  FindSacrum(board, pelvis.middle, *front, *back);
}

}  // namespace orvane
