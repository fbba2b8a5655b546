#include "inspect/summary/subject_measure.h"

#include <utility>

#include "formats/pose/hierarchy.h"

namespace orvane {
namespace {

// A single point has no height.
constexpr std::size_t kFewestPoints = 2;

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

std::optional<Subject> SubjectMeasure::Finish() {
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

double SubjectMeasure::WayOfSteps() const {
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
double SubjectMeasure::RoomFor(const Subject& subject, const FrameBox& all) {
  const auto room = [&](std::size_t axis) {
    return std::max(0.0, all.most[axis] - all.least[axis] - subject.extent[axis]);
  };
  return std::hypot(room(0), room(1), room(2));
}

void SubjectMeasure::MeasureAxis(std::size_t axis, Subject& subject) const {
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

std::optional<Subject> MeasureSubject(const HtrDocument& document) {
  const auto hierarchy = ListHierarchy(document);
  SubjectMeasure measure(MostFramesOf(hierarchy), hierarchy.size());
  PoseWalk walk(hierarchy, PoseParts::kPositions);
  for (std::size_t index = 0; index < measure.Count(); ++index) {
    walk.MoveTo(measure.FrameAt(index));
    measure.TakePose(measure.FrameAt(index), walk);
  }
  return measure.Finish();
}

std::optional<Subject> MeasureSubject(const TRCDocument& document) {
  std::size_t frames = 0;
  for (const TRCMarker& marker : document.markers()) {
    frames = std::max(frames, marker.SampleCount());
  }
  SubjectMeasure measure(frames, document.markers().size());
  std::size_t track = 0;
  for (const TRCMarker& marker : document.markers()) {
    for (std::size_t index = 0; index < measure.Count(); ++index) {
      const std::size_t frame = measure.FrameAt(index);
      Point point{};
      if (frame < marker.SampleCount() && marker.GetSample(frame, point[0], point[1], point[2])) {
        measure.Take(index, track, point);
      }
    }
    ++track;
  }
  return measure.Finish();
}

}  // namespace orvane
