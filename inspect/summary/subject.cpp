#include "inspect/summary/subject.h"

#include <algorithm>

#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/summary/hierarchy.h"
#include "inspect/summary/pose_walk.h"
#include "inspect/summary/subject_measure.h"

namespace orvane {
namespace {

constexpr std::size_t kY = 1;
constexpr std::size_t kZ = 2;

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
