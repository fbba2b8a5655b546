#include "inspect/summary/subject.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/summary/hierarchy.h"
#include "inspect/summary/pose_walk.h"

namespace orvane {
namespace {

constexpr std::size_t kY = 1;
constexpr std::size_t kZ = 2;

// As many frames as are looked at.
constexpr std::size_t kMostFrames = 200;

// A single point has no height.
constexpr std::size_t kFewestPoints = 2;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct FrameBox {
  std::size_t points = 0;
  Point least{kInfinity, kInfinity, kInfinity};
  Point most{-kInfinity, -kInfinity, -kInfinity};

  void Include(const Point& point) {
    ++points;
    for (std::size_t axis = 0; axis < point.size(); ++axis) {
      least[axis] = std::min(least[axis], point[axis]);
      most[axis] = std::max(most[axis], point[axis]);
    }
  }
};

// How far the points that are in a frame and in the one before have got between them.
struct Step {
  Point sum{};
  std::size_t points = 0;

  void Include(const Point& from, const Point& to) {
    ++points;
    for (std::size_t axis = 0; axis < to.size(); ++axis) sum[axis] += to[axis] - from[axis];
  }
};

struct Track {
  std::optional<Point> start;
  double way = 0.0;
  Point last{};
  std::size_t last_index = 0;

  void Include(const Point& point) {
    if (!start) start = point;
    const Point& from = *start;
    way = std::max(way, std::hypot(point[0] - from[0], point[1] - from[1], point[2] - from[2]));
  }
};

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// Takes points of the frames that are looked at, in any order of tracks, and in that of frames for
// each.
class Measuring {
 public:
  Measuring(std::size_t frames, std::size_t tracks)
      : step_(std::max<std::size_t>(1, (frames + kMostFrames - 1) / kMostFrames)),
        boxes_((frames + step_ - 1) / step_),
        steps_(boxes_.size()),
        tracks_(tracks) {}

  // Counted from 0.
  [[nodiscard]] std::size_t Count() const { return boxes_.size(); }
  [[nodiscard]] std::size_t FrameAt(std::size_t index) const { return index * step_; }

  void Take(std::size_t index, std::size_t track, const Point& point) {
    if (!std::isfinite(point[0] + point[1] + point[2])) return;
    boxes_[index].Include(point);
    Track& taken = tracks_[track];
    if (taken.start && taken.last_index + 1 == index) steps_[index].Include(taken.last, point);
    taken.Include(point);
    taken.last = point;
    taken.last_index = index;
  }

  [[nodiscard]] std::optional<Subject> Finish();

 private:
  void MeasureAxis(std::size_t axis, Subject& subject) const;
  double WayOfSteps() const;
  static double RoomFor(const Subject& subject, const FrameBox& all);

  std::size_t step_;
  std::vector<FrameBox> boxes_;
  std::vector<Step> steps_;
  std::vector<Track> tracks_;
};

std::optional<Subject> Measuring::Finish() {
  Subject subject;
  for (const FrameBox& box : boxes_) subject.points = std::max(subject.points, box.points);
  if (subject.points < kFewestPoints) return std::nullopt;
  FrameBox all;
  for (const FrameBox& box : boxes_) {
    if (box.points == 0) continue;
    all.Include(box.least);
    all.Include(box.most);
  }
  std::erase_if(boxes_, [&subject](const FrameBox& box) { return box.points < subject.points; });
  for (std::size_t axis = 0; axis < 3; ++axis) MeasureAxis(axis, subject);

  std::vector<double> ways;
  for (const Track& track : tracks_) {
    if (track.start) ways.push_back(track.way);
  }
  // Points that come and go are not there from start to end. Their steps add up; but so does what
  // is wrong with them, which the room that there is for the subject bounds.
  subject.way = std::max(Median(std::move(ways)), std::min(WayOfSteps(), RoomFor(subject, all)));
  return subject;
}

double Measuring::WayOfSteps() const {
  Point at{};
  double way = 0.0;
  for (const Step& step : steps_) {
    if (step.points == 0) continue;
    for (std::size_t axis = 0; axis < at.size(); ++axis) {
      at[axis] += step.sum[axis] / static_cast<double>(step.points);
    }
    way = std::max(way, std::hypot(at[0], at[1], at[2]));
  }
  return way;
}

// How far it can get within the bounds of `all` that there is.
double Measuring::RoomFor(const Subject& subject, const FrameBox& all) {
  const auto room = [&](std::size_t axis) {
    return std::max(0.0, all.most[axis] - all.least[axis] - subject.extent[axis]);
  };
  return std::hypot(room(0), room(1), room(2));
}

void Measuring::MeasureAxis(std::size_t axis, Subject& subject) const {
  std::vector<double> extents;
  double lowest = kInfinity;
  double highest_floor = -kInfinity;
  double highest = -kInfinity;
  for (const FrameBox& box : boxes_) {
    extents.push_back(box.most[axis] - box.least[axis]);
    lowest = std::min(lowest, box.least[axis]);
    highest_floor = std::max(highest_floor, box.least[axis]);
    highest = std::max(highest, box.most[axis]);
  }
  subject.extent[axis] = Median(std::move(extents));
  subject.bounds.least[axis] = lowest;
  subject.bounds.most[axis] = highest;
  subject.floor_change[axis] = highest_floor - lowest;
}

// Whether its lowest point along `axis` stays near 0, for a subject as tall as that.
bool StandsOnFloor(const Subject& subject, std::size_t axis, double height) {
  constexpr double kBelow = 0.1;
  constexpr double kAbove = 0.15;
  constexpr double kSteady = 0.1;
  return subject.bounds.least[axis] >= -kBelow * height &&
         subject.bounds.least[axis] <= kAbove * height &&
         subject.floor_change[axis] <= kSteady * height;
}

}  // namespace

std::optional<Subject> MeasureSubject(const HtrDocument& document) {
  const auto hierarchy = ListHierarchy(document);
  std::size_t frames = 0;
  for (const HierarchyEntry& entry : hierarchy) {
    frames = std::max(frames, entry.segment->GetNumFrames());
  }
  Measuring measuring(frames, hierarchy.size());
  PoseWalk walk(hierarchy, PoseParts::kPositions);
  for (std::size_t index = 0; index < measuring.Count(); ++index) {
    walk.MoveTo(measuring.FrameAt(index));
    for (const std::size_t entry : walk.Holding()) {
      measuring.Take(index, entry, walk.PositionOf(entry));
    }
  }
  return measuring.Finish();
}

std::optional<Subject> MeasureSubject(const TRCDocument& document) {
  std::size_t frames = 0;
  for (const TRCMarker& marker : document.markers()) {
    frames = std::max(frames, marker.SampleCount());
  }
  Measuring measuring(frames, document.markers().size());
  std::size_t track = 0;
  for (const TRCMarker& marker : document.markers()) {
    for (std::size_t index = 0; index < measuring.Count(); ++index) {
      const std::size_t frame = measuring.FrameAt(index);
      Point point{};
      if (frame < marker.SampleCount() && marker.GetSample(frame, point[0], point[1], point[2])) {
        measuring.Take(index, track, point);
      }
    }
    ++track;
  }
  return measuring.Finish();
}

bool SeemsToStandAlongZ(const Subject& subject) {
  constexpr std::size_t kPointsOfABody = 8;
  constexpr double kLongerThanAlongX = 1.2;
  constexpr double kLongerThanAlongY = 1.5;
  const double height = subject.extent[kZ];
  return subject.points >= kPointsOfABody && height > 0.0 &&
         height >= kLongerThanAlongX * subject.extent[0] &&
         height >= kLongerThanAlongY * subject.extent[kY] && StandsOnFloor(subject, kZ, height) &&
         !StandsOnFloor(subject, kY, height);
}

double HeightOf(const Subject& subject) {
  return subject.extent[SeemsToStandAlongZ(subject) ? kZ : kY];
}

double InMeters(double length, std::uint32_t length_unit) {
  constexpr double kMetersPerMillimeter = 0.001;
  return length * LengthFactor(length_unit, kMillimeters) * kMetersPerMillimeter;
}

namespace {

// So small a number would else be 0.
std::string Briefly(double number) { return FormatDouble(number, number < 0.095 ? 2 : 1); }

}  // namespace

std::string DescribeSubject(const Subject& subject, std::uint32_t length_unit,
                            const std::optional<double>& seconds) {
  std::string text = FormatDouble(InMeters(HeightOf(subject), length_unit), 2) + " m tall, moves " +
                     Briefly(InMeters(subject.way, length_unit)) + " m";
  if (seconds) text += ", " + Briefly(*seconds) + " s";
  return text;
}

std::string DescribeHeights(const Bounds& bounds, std::uint32_t length_unit) {
  const bool is_long = LengthFactor(length_unit, kMillimeters) > 100.0;  // as meters are
  const int decimals = is_long ? 2 : 0;
  return FormatDouble(bounds.least[kZ], decimals) + " to " +
         FormatDouble(bounds.most[kZ], decimals) + " " +
         std::string(CalibrationUnitsName(length_unit));
}

}  // namespace orvane
