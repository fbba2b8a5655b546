#include <algorithm>
#include <cmath>
#include <utility>

#include "inspect/mapping/body_parts.h"

namespace orvane {
namespace {

constexpr double kApart = 0.035;  // front from back, and left from right
constexpr double kMirrored = 0.03;
constexpr double kOnTop = 0.025;

// The markers of the head, without one on top of its corners.
std::vector<std::size_t> Corners(const PlaceBoard& board) {
  const MarkerPlaces& places = board.Places();
  std::vector<std::size_t> corners = places.Head();
  std::sort(corners.begin(), corners.end(), [&](std::size_t one, std::size_t other) {
    return places.At(one).up > places.At(other).up;
  });
  if (corners.size() > 4 && places.At(corners[0]).up - places.At(corners[1]).up > kOnTop) {
    corners.erase(corners.begin());
  }
  return corners;
}

struct Pair {
  std::size_t left;
  std::size_t right;
};

// Left and right ones that are mirrored.
std::vector<Pair> Pairs(const MarkerPlaces& places, const std::vector<std::size_t>& markers) {
  std::vector<Pair> pairs;
  for (const std::size_t left : markers) {
    for (const std::size_t right : markers) {
      if (places.At(left).left - places.At(right).left < kApart) continue;
      if (AreMirrored(places, left, right, kMirrored)) pairs.push_back({left, right});
    }
  }
  return pairs;
}

void Give(PlaceBoard& board, const Pair& pair, bool is_front, const std::string& count) {
  const std::string place = is_front ? "front " : "back ";
  const std::string standard = is_front ? "FHD" : "BHD";
  board.Give(kLeftSide, standard, pair.left,
             place + "left of the " + count + " markers of the head");
  board.Give(kRightSide, standard, pair.right,
             place + "right of the " + count + " markers of the head");
}

}  // namespace

void FindHead(PlaceBoard& board) {
  const MarkerPlaces& places = board.Places();
  const std::vector<std::size_t> corners = Corners(board);
  std::vector<Pair> pairs = Pairs(places, corners);
  const auto forward = [&](const Pair& pair) { return places.At(pair.left).forward; };
  if (corners.size() == 4 && pairs.size() == 2) {
    if (forward(pairs[0]) < forward(pairs[1])) std::swap(pairs[0], pairs[1]);
    if (forward(pairs[0]) - forward(pairs[1]) < kApart) {
      return board.LeaveOut("the head", "front and back are not told apart");
    }
    Give(board, pairs[0], true, "four");
    Give(board, pairs[1], false, "four");
  } else if (corners.size() == 3 && pairs.size() == 1) {
    std::size_t third = corners[0];
    for (const std::size_t corner : corners) {
      if (corner != pairs[0].left && corner != pairs[0].right) third = corner;
    }
    const double ahead = forward(pairs[0]) - places.At(third).forward;
    const std::size_t beside =
        places.At(third).left > 0 ? pairs[0].left : pairs[0].right;  // on its side
    if (std::abs(ahead) < kApart ||
        std::abs(places.At(beside).left - places.At(third).left) > kMirrored / 2) {
      return board.LeaveOut("the head", "three markers that are not at three of its corners");
    }
    Give(board, pairs[0], ahead > 0, "three");
    board.LeaveOut("the head",
                   "one of its four corners is missing, and so its partner is left out");
  } else {
    board.LeaveOut("the head", CountReason(corners.size(), "four, two by two alike,"));
  }
}

}  // namespace orvane
