#include "inspect/mapping/marker_places.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "inspect/mapping/quantiles.h"

namespace orvane {
namespace {

// How much of it lies between a tenth and nine tenths of the values.
double SpreadOf(const std::vector<double>& values) {
  return Quantile(values, 0.9) - Quantile(values, 0.1);
}

// One axis of all the points that are there.
std::vector<double> ValuesOf(const BodyTrack& track, double BodyPoint::*axis) {
  std::vector<double> values;
  for (const auto& point : track) {
    if (point) values.push_back((*point).*axis);
  }
  return values;
}

// What `measure` says of two markers in each frame that shows both.
template <typename Measure>
std::vector<double> Measured(const BodyTrack& from, const BodyTrack& to, const Measure& measure) {
  std::vector<double> values;
  for (std::size_t frame = 0; frame < from.size(); ++frame) {
    if (from[frame] && to[frame]) values.push_back(measure(*from[frame], *to[frame]));
  }
  return values;
}

bool AreEnough(std::size_t frames, std::size_t of_frames) {
  constexpr std::size_t kFewest = 10;
  constexpr std::size_t kShare = 10;  // one of so many
  return frames >= kFewest && frames >= of_frames / kShare;
}

double HeightBetween(const std::vector<BodyPoint>& places,
                     const std::vector<std::size_t>& markers) {
  double least = std::numeric_limits<double>::infinity();
  double most = -least;
  for (const std::size_t marker : markers) {
    least = std::min(least, places[marker].up);
    most = std::max(most, places[marker].up);
  }
  return most - least;
}

double Length(const BodyPoint& from, const BodyPoint& to) {
  return std::hypot(to.left - from.left, to.up - from.up, to.forward - from.forward);
}

// The middle of where most values lie within `width` of each other.
double DensestOf(std::vector<double> values, double width) {
  std::sort(values.begin(), values.end());
  std::size_t best = 0;
  double middle = 0;
  for (std::size_t first = 0, end = 0; first < values.size(); ++first) {
    while (end < values.size() && values[end] - values[first] <= width) ++end;
    if (end - first <= best) continue;
    best = end - first;
    middle = values[first + (end - first) / 2];
  }
  return middle;
}

}  // namespace

MarkerPlaces::MarkerPlaces(WalkTracks walk)
    : tracks_(std::move(walk.markers)), problem_(std::move(walk.problem)) {
  constexpr std::size_t kMostMarkers = 120;
  if (!problem_.empty()) return;
  if (tracks_.size() > kMostMarkers) {
    problem_ = "It holds more markers than one body carries";
    return;
  }
  MeasurePlaces();
  FindHead();
  if (!problem_.empty()) return;
  Straighten();
  if (!problem_.empty()) return;
  RefuseOthers();
}

double MarkerPlaces::LowestOf(std::size_t marker) const {
  constexpr double kRarely = 0.1;
  return Quantile(ValuesOf(tracks_[marker], &BodyPoint::up), kRarely);
}

BodyPoint MarkerPlaces::Offset(std::size_t from, std::size_t to) const {
  const auto along = [&](double BodyPoint::*axis) {
    return Median(Measured(tracks_[from], tracks_[to], [axis](const auto& one, const auto& other) {
      return other.*axis - one.*axis;
    }));
  };
  return {along(&BodyPoint::left), along(&BodyPoint::up), along(&BodyPoint::forward)};
}

double MarkerPlaces::ForwardOffset(std::size_t from, std::size_t to, double share) const {
  return Quantile(
      Measured(tracks_[from], tracks_[to],
               [](const auto& one, const auto& other) { return other.forward - one.forward; }),
      share);
}

MarkerPlaces::Distance MarkerPlaces::Between(std::size_t one, std::size_t other) const {
  const std::vector<double> distances = Measured(tracks_[one], tracks_[other], Length);
  Distance distance{Median(distances), std::numeric_limits<double>::infinity()};
  if (AreEnough(distances.size(), tracks_[one].size())) distance.spread = SpreadOf(distances);
  return distance;
}

double MarkerPlaces::SpreadOfSum(std::size_t one, std::size_t other, std::size_t third) const {
  std::vector<double> sums;
  for (std::size_t frame = 0; frame < tracks_[one].size(); ++frame) {
    const auto& from = tracks_[one][frame];
    const auto& to = tracks_[other][frame];
    const auto& to_third = tracks_[third][frame];
    if (from && to && to_third) sums.push_back(Length(*from, *to) + Length(*from, *to_third));
  }
  return AreEnough(sums.size(), tracks_[one].size()) ? SpreadOf(sums)
                                                     : std::numeric_limits<double>::infinity();
}

std::vector<std::size_t> MarkerPlaces::Placed() const {
  std::vector<std::size_t> placed;
  for (std::size_t marker = 0; marker < has_place_.size(); ++marker) {
    if (has_place_[marker]) placed.push_back(marker);
  }
  return placed;
}

void MarkerPlaces::MeasurePlaces() {
  constexpr double kMostForward = 0.75;  // of the height: what a foot does in a long stride
  constexpr double kMostAside = 0.3;
  places_.assign(tracks_.size(), BodyPoint{});
  has_place_.assign(tracks_.size(), false);
  for (std::size_t marker = 0; marker < tracks_.size(); ++marker) {
    const BodyTrack& track = tracks_[marker];
    const std::vector<double> up = ValuesOf(track, &BodyPoint::up);
    has_place_[marker] = AreEnough(up.size(), track.size());
    places_[marker] = {Median(ValuesOf(track, &BodyPoint::left)), Median(up),
                       Median(ValuesOf(track, &BodyPoint::forward))};
  }
  const double height = HeightBetween(places_, Placed());
  for (const std::size_t marker : Placed()) {
    const BodyTrack& track = tracks_[marker];
    has_place_[marker] = SpreadOf(ValuesOf(track, &BodyPoint::forward)) <= kMostForward * height &&
                         SpreadOf(ValuesOf(track, &BodyPoint::left)) <= kMostAside * height;
  }
}

void MarkerPlaces::FindHead() {
  constexpr double kBand = 0.08;
  constexpr double kMostAcross = 0.16;
  constexpr double kMostSpread = 0.02;
  constexpr std::size_t kFewest = 3;
  constexpr std::size_t kMost = 6;
  const std::vector<std::size_t> placed = Placed();
  const double height = HeightBetween(places_, placed);
  double top = -std::numeric_limits<double>::infinity();
  for (const std::size_t marker : placed) top = std::max(top, places_[marker].up);
  double mean = 0;
  for (const std::size_t marker : placed) {
    if (places_[marker].up < top - kBand * height) continue;
    head_.push_back(marker);
    mean += places_[marker].up;
  }
  bool is_head = kFewest <= head_.size() && head_.size() <= kMost;
  for (std::size_t one = 0; is_head && one < head_.size(); ++one) {
    for (std::size_t other = one + 1; other < head_.size(); ++other) {
      const Distance distance = Between(head_[one], head_[other]);
      is_head = is_head && distance.spread <= kMostSpread * height &&
                distance.median <= kMostAcross * height;
    }
  }
  if (!is_head) {
    problem_ = "What is highest in it is no head with three to six markers that stay together";
    return;
  }
  const double lowest = top - height;
  Scale(1 / (mean / static_cast<double>(head_.size()) - lowest));
  MeasurePlaces();
  double least = std::numeric_limits<double>::infinity();
  for (const std::size_t marker : Placed()) least = std::min(least, places_[marker].up);
  Move(0, -least, 0);
}

void MarkerPlaces::Straighten() {
  constexpr double kSameHeight = 0.02;
  constexpr double kSameForward = 0.1;
  constexpr double kApart = 0.05;
  constexpr double kWidthOfMiddle = 0.03;
  constexpr double kLowest = 0.5;  // the upper body does not stride
  constexpr double kMostTurn = 0.35;
  constexpr double kMostSpread = 0.05;
  const std::vector<std::size_t> placed = Placed();
  std::vector<double> middles;
  std::vector<std::pair<double, double>> turns;  // by the middle that they are around
  for (const std::size_t one : placed) {
    for (const std::size_t other : placed) {
      const BodyPoint& right = places_[one];
      const BodyPoint& left = places_[other];
      if (left.left - right.left < kApart || right.up < kLowest) continue;
      if (std::abs(left.up - right.up) > kSameHeight) continue;
      if (std::abs(left.forward - right.forward) > kSameForward) continue;
      if (!AreRigid(one, other, kMostSpread)) continue;
      middles.push_back((left.left + right.left) / 2);
      turns.emplace_back(middles.back(),
                         std::atan2(left.forward - right.forward, left.left - right.left));
    }
  }
  const double middle = DensestOf(middles, kWidthOfMiddle);
  std::vector<double> around;
  for (const auto& [at, turn] : turns) {
    if (std::abs(at - middle) <= kWidthOfMiddle / 2) around.push_back(turn);
  }
  const double turn = around.empty() ? 0 : Median(around);
  if (around.empty() || std::abs(turn) > kMostTurn) {
    problem_ =
        "Its upper body shows no left and right sides that are alike, across the way it goes";
    return;
  }
  for (BodyTrack& track : tracks_) {
    for (auto& point : track) {
      if (!point) continue;
      const double left = point->left - middle;
      point->left = left * std::cos(turn) + point->forward * std::sin(turn);
      point->forward = point->forward * std::cos(turn) - left * std::sin(turn);
    }
  }
  MeasurePlaces();
  std::vector<double> forward;
  for (const std::size_t marker : head_) forward.push_back(places_[marker].forward);
  std::vector<double> left;
  for (const std::size_t one : placed) {
    for (const std::size_t other : placed) {
      if (places_[other].left - places_[one].left < kApart || places_[one].up < kLowest) continue;
      if (std::abs(places_[other].up - places_[one].up) > kSameHeight) continue;
      if (std::abs(places_[other].forward - places_[one].forward) > kSameHeight) continue;
      left.push_back((places_[other].left + places_[one].left) / 2);
    }
  }
  Move(-DensestOf(left, kWidthOfMiddle), 0, -Median(forward));
}

void MarkerPlaces::RefuseOthers() {
  constexpr double kMostAside = 0.62;
  constexpr double kMostForward = 0.45;
  constexpr std::size_t kMostOthers = 3;
  constexpr double kMostAsideOfHead = 0.05;
  std::size_t others = 0;
  for (const std::size_t marker : Placed()) {
    const BodyPoint& place = places_[marker];
    if (std::abs(place.left) > kMostAside || std::abs(place.forward) > kMostForward) ++others;
  }
  double head = 0;
  for (const std::size_t marker : head_) head += places_[marker].left;
  const bool is_aside = std::abs(head) > kMostAsideOfHead * static_cast<double>(head_.size());
  if (others > kMostOthers || is_aside) {
    problem_ = "Its markers lie around more than one body, or around none that walks upright";
  }
}

void MarkerPlaces::Scale(double factor) {
  for (BodyTrack& track : tracks_) {
    for (auto& point : track) {
      if (!point) continue;
      *point = {point->left * factor, point->up * factor, point->forward * factor};
    }
  }
}

void MarkerPlaces::Move(double left, double up, double forward) {
  for (BodyTrack& track : tracks_) {
    for (auto& point : track) {
      if (!point) continue;
      *point = {point->left + left, point->up + up, point->forward + forward};
    }
  }
  for (BodyPoint& place : places_) {
    place = {place.left + left, place.up + up, place.forward + forward};
  }
}

}  // namespace orvane
