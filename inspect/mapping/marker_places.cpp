#include "inspect/mapping/marker_places.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "inspect/mapping/quantiles.h"

namespace orvane {
namespace {

constexpr double kWidthOfMiddle = 0.03;

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
  if (!IsHead(height)) {
    problem_ = "What is highest in it is no head with three to six markers that stay together";
    return;
  }
  const double lowest = top - height;
  Scale(1 / (mean / static_cast<double>(head_.size()) - lowest));
  MeasurePlaces();
  double least = std::numeric_limits<double>::infinity();
  for (const std::size_t marker : Placed()) least = std::min(least, places_[marker].up);
  Move({0, -least, 0});
}

bool MarkerPlaces::IsHead(double height) const {
  constexpr double kMostAcross = 0.16;
  constexpr double kMostSpread = 0.02;
  constexpr std::size_t kFewest = 3;
  constexpr std::size_t kMost = 6;
  if (height <= 0 || head_.size() < kFewest || head_.size() > kMost) return false;
  for (const std::size_t one : head_) {
    for (const std::size_t other : head_) {
      if (one == other) continue;
      const Distance distance = Between(one, other);
      if (distance.spread > kMostSpread * height) return false;
      if (distance.median > kMostAcross * height) return false;
    }
  }
  return true;
}

// Markers of the upper body, which does not stride, that may be left and right of each other.
std::vector<MarkerPlaces::Across> MarkerPlaces::PairsAcross(double most_forward) const {
  constexpr double kLowest = 0.5;
  constexpr double kSameHeight = 0.02;
  constexpr double kApart = 0.05;
  constexpr double kMostSpread = 0.05;
  const std::vector<std::size_t> placed = Placed();
  std::vector<Across> pairs;
  for (const std::size_t one : placed) {
    for (const std::size_t other : placed) {
      const BodyPoint& right = places_[one];
      const BodyPoint& left = places_[other];
      const double forward = left.forward - right.forward;
      if (left.left - right.left < kApart || right.up < kLowest) continue;
      if (std::abs(left.up - right.up) > kSameHeight || std::abs(forward) > most_forward) continue;
      if (!AreRigid(one, other, kMostSpread)) continue;
      pairs.push_back({(left.left + right.left) / 2, std::atan2(forward, left.left - right.left)});
    }
  }
  return pairs;
}

double MarkerPlaces::MiddleOf(const std::vector<Across>& pairs) {
  std::vector<double> middles;
  middles.reserve(pairs.size());
  for (const Across& pair : pairs) middles.push_back(pair.middle);
  return DensestOf(std::move(middles), kWidthOfMiddle);
}

void MarkerPlaces::Straighten() {
  constexpr double kMostForward = 0.1;  // before all is turned
  constexpr double kMostForwardAfter = 0.02;
  constexpr double kMostTurn = 0.35;  // 20 degrees
  const std::vector<Across> pairs = PairsAcross(kMostForward);
  const double middle = MiddleOf(pairs);
  std::vector<double> turns;
  for (const Across& pair : pairs) {
    if (std::abs(pair.middle - middle) <= kWidthOfMiddle / 2) turns.push_back(pair.turn);
  }
  if (turns.empty() || std::abs(Median(turns)) > kMostTurn) {
    problem_ =
        "Its upper body shows no left and right sides that are alike, across the way it goes";
    return;
  }
  Move({-middle, 0, 0});
  Turn(Median(turns));
  MeasurePlaces();
  std::vector<double> forward;
  for (const std::size_t marker : head_) forward.push_back(places_[marker].forward);
  Move({-MiddleOf(PairsAcross(kMostForwardAfter)), 0, -Median(forward)});
}

void MarkerPlaces::RefuseOthers() {
  constexpr double kMostAside = 0.62;
  constexpr double kMostForward = 0.45;
  constexpr std::size_t kMostOthers = 3;
  constexpr double kBeside = 0.03;
  constexpr int kMostMoreOnASide = 8;
  constexpr double kMostAsideOfHead = 0.05;
  std::size_t others = 0;
  int more_on_left = 0;
  for (const std::size_t marker : Placed()) {
    const BodyPoint& place = places_[marker];
    if (std::abs(place.left) > kMostAside || std::abs(place.forward) > kMostForward) ++others;
    if (std::abs(place.left) > kBeside) more_on_left += place.left > 0 ? 1 : -1;
  }
  double head = 0;
  for (const std::size_t marker : head_) head += places_[marker].left;
  const bool is_aside = std::abs(head) > kMostAsideOfHead * static_cast<double>(head_.size());
  if (others > kMostOthers || std::abs(more_on_left) > kMostMoreOnASide || is_aside) {
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

void MarkerPlaces::Turn(double angle) {
  for (BodyTrack& track : tracks_) {
    for (auto& point : track) {
      if (!point) continue;
      *point = {point->left * std::cos(angle) + point->forward * std::sin(angle), point->up,
                point->forward * std::cos(angle) - point->left * std::sin(angle)};
    }
  }
}

void MarkerPlaces::Move(const BodyPoint& by) {
  const auto move = [&by](BodyPoint& point) {
    point = {point.left + by.left, point.up + by.up, point.forward + by.forward};
  };
  for (BodyTrack& track : tracks_) {
    for (auto& point : track) {
      if (point) move(*point);
    }
  }
  for (BodyPoint& place : places_) move(place);
}

}  // namespace orvane
