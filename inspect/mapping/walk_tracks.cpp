#include "inspect/mapping/walk_tracks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "inspect/mapping/quantiles.h"
#include "inspect/summary/subject_measure.h"

namespace orvane {
namespace {

constexpr std::size_t kMostFrames = 300;
constexpr std::size_t kMostFramesOfWay = 4000;
constexpr std::size_t kFewestFrames = 20;
constexpr double kStretch = 0.35;   // of the height
constexpr double kFewestWay = 0.8;  // of the height
constexpr double kLongestHalfStretch_s = 0.7;
constexpr std::size_t kRefinements = 4;

// On the floor.
struct FloorPoint {
  double x = 0;
  double y = 0;
};

std::size_t FrameCount(const TRCDocument& document) {
  std::size_t count = 0;
  for (const TRCMarker& marker : document.markers()) count = std::max(count, marker.SampleCount());
  return count;
}

// Whether it is a number, and one that can be reckoned with.
bool IsSomewhere(double x, double y, double z) {
  constexpr double kFarthest = 1e12;
  return std::abs(x) < kFarthest && std::abs(y) < kFarthest && std::abs(z) < kFarthest;
}

// Up is Y: then X is left where Z is forward.
BodyTrack TrackOf(const TRCMarker& marker, std::size_t frames, std::size_t step, bool is_up_z) {
  BodyTrack track;
  for (std::size_t frame = 0; frame < frames; frame += step) {
    double x = 0;
    double y = 0;
    double z = 0;
    if (!marker.GetSample(frame, x, y, z) || !IsSomewhere(x, y, z)) {
      track.emplace_back();
    } else {
      track.push_back(is_up_z ? BodyPoint{y, z, x} : BodyPoint{x, y, z});
    }
  }
  return track;
}

// How far all have got from the first frame: the steps of those that are in a frame and in the one
// before, added up.
std::vector<FloorPoint> WayOf(const std::vector<BodyTrack>& tracks) {
  std::vector<FloorPoint> way(tracks.front().size());
  for (std::size_t frame = 1; frame < way.size(); ++frame) {
    FloorPoint step;
    double count = 0;
    for (const BodyTrack& track : tracks) {
      if (!track[frame] || !track[frame - 1]) continue;
      step.x += track[frame]->left - track[frame - 1]->left;
      step.y += track[frame]->forward - track[frame - 1]->forward;
      ++count;
    }
    way[frame] = way[frame - 1];
    if (count == 0) continue;
    way[frame].x += step.x / count;
    way[frame].y += step.y / count;
  }
  return way;
}

// The direction of the stretch around `frame`: a unit, or nothing where there is no such stretch.
std::optional<FloorPoint> HeadingAt(const std::vector<FloorPoint>& way, std::size_t frame,
                                    std::size_t longest_half, double stretch) {
  for (std::size_t half = 1; half <= longest_half; ++half) {
    const FloorPoint& from = way[frame - std::min(frame, half)];
    const FloorPoint& to = way[std::min(frame + half, way.size() - 1)];
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    if (length > 0 && length >= stretch)
      return FloorPoint{(to.x - from.x) / length, (to.y - from.y) / length};
  }
  return std::nullopt;
}

BodyPoint Turned(const BodyPoint& point, const FloorPoint& heading) {
  return {point.left * heading.y - point.forward * heading.x, point.up,
          point.left * heading.x + point.forward * heading.y};
}

// In `frames`, with each of their headings.
BodyTrack SeenFromBody(const BodyTrack& track, const std::vector<std::size_t>& frames,
                       const std::vector<FloorPoint>& headings) {
  BodyTrack seen;
  for (std::size_t index = 0; index < frames.size(); ++index) {
    const auto& point = track[frames[index]];
    seen.push_back(point ? std::optional(Turned(*point, headings[index])) : std::nullopt);
  }
  return seen;
}

// Moves each frame so that most markers are where they mostly are.
class Centering {
 public:
  explicit Centering(std::vector<BodyTrack>& tracks) : tracks_(tracks) {}

  void Run() {
    places_.assign(tracks_.size(), BodyPoint{});
    for (std::size_t refinement = 0; refinement < kRefinements; ++refinement) {
      for (std::size_t frame = 0; frame < tracks_.front().size(); ++frame) MoveFrame(frame);
      for (std::size_t marker = 0; marker < tracks_.size(); ++marker) Place(marker);
    }
  }

 private:
  void MoveFrame(std::size_t frame) {
    std::vector<double> left;
    std::vector<double> forward;
    for (std::size_t marker = 0; marker < tracks_.size(); ++marker) {
      const auto& point = tracks_[marker][frame];
      if (!point || std::isnan(places_[marker].left)) continue;
      left.push_back(point->left - places_[marker].left);
      forward.push_back(point->forward - places_[marker].forward);
    }
    const FloorPoint origin{Median(std::move(left)), Median(std::move(forward))};
    for (BodyTrack& track : tracks_) {
      if (!track[frame]) continue;
      track[frame]->left -= origin.x;
      track[frame]->forward -= origin.y;
    }
  }

  void Place(std::size_t marker) {
    std::vector<double> left;
    std::vector<double> forward;
    for (const auto& point : tracks_[marker]) {
      if (!point) continue;
      left.push_back(point->left);
      forward.push_back(point->forward);
    }
    places_[marker].left = Median(std::move(left));
    places_[marker].forward = Median(std::move(forward));
  }

  std::vector<BodyTrack>& tracks_;
  std::vector<BodyPoint> places_;  // by marker; NaN for one that is never seen
};

double HalfStretchFrames(const TRCDocument& document, std::size_t step) {
  constexpr double kUsualRate = 60;
  const double rate = document.DataRate() > 0 ? document.DataRate() : kUsualRate;
  return std::max(1.0, kLongestHalfStretch_s * rate / static_cast<double>(step));
}

double LengthOf(const std::vector<FloorPoint>& way, const std::vector<std::size_t>& frames) {
  double length = 0;
  for (std::size_t index = 1; index < frames.size(); ++index) {
    const FloorPoint& from = way[frames[index - 1]];
    const FloorPoint& to = way[frames[index]];
    length += std::hypot(to.x - from.x, to.y - from.y);
  }
  return length;
}

}  // namespace

WalkTracks TrackWalk(const TRCDocument& document) {
  const auto subject = MeasureSubject(document);
  if (!subject) return {{}, "No frame of it shows two markers"};
  const bool is_up_z = SeemsToStandAlongZ(*subject);
  const double height = HeightOf(*subject);
  const std::size_t frames = FrameCount(document);
  const std::size_t step = (frames + kMostFramesOfWay - 1) / kMostFramesOfWay;
  std::vector<BodyTrack> tracks;
  for (const TRCMarker& marker : document.markers()) {
    tracks.push_back(TrackOf(marker, frames, step, is_up_z));
  }
  const std::vector<FloorPoint> way = WayOf(tracks);
  const auto half = static_cast<std::size_t>(HalfStretchFrames(document, step));

  WalkTracks walk;
  std::vector<std::size_t> walked;
  std::vector<FloorPoint> headings;
  const std::size_t stride = (way.size() + kMostFrames - 1) / kMostFrames;
  for (std::size_t frame = 0; frame < way.size(); frame += stride) {
    const auto heading = HeadingAt(way, frame, half, kStretch * height);
    if (!heading) continue;
    walked.push_back(frame);
    headings.push_back(*heading);
  }
  if (height <= 0 || walked.size() < kFewestFrames || LengthOf(way, walked) < kFewestWay * height) {
    return {{}, "Nobody in it walks as far as two steps"};
  }
  for (const BodyTrack& track : tracks) {
    walk.markers.push_back(SeenFromBody(track, walked, headings));
  }
  Centering(walk.markers).Run();
  return walk;
}

}  // namespace orvane
