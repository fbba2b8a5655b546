#include "inspect/check/trc_samples.h"

#include <cstdint>

namespace orvane::trc {
namespace {

constexpr std::size_t kCoordinates = 3;

bool AreEqual(const TRCPosition& left, const TRCPosition& right) {
  return left.x == right.x && left.y == right.y && left.z == right.z;
}

double NumberOrZero(double coordinate) { return std::isnan(coordinate) ? 0.0 : coordinate; }

TRCPosition PositionAt(const double* coordinates) {
  return {coordinates[0], NumberOrZero(coordinates[1]), NumberOrZero(coordinates[2])};
}

void Take(std::size_t frame, const TRCPosition& position, double distance,
          PositionExtremes& found) {
  if (distance == 0.0) {
    if (found.zeros++ == 0) found.first_zero = frame;
  } else if (distance > found.farthest) {
    found.next_farthest = found.farthest;
    found.farthest = distance;
    found.at_farthest = position;
    found.first_farthest = frame;
    found.times_at_farthest = 1;
  } else if (distance == found.farthest && AreEqual(position, found.at_farthest)) {
    ++found.times_at_farthest;
  } else if (distance > found.next_farthest) {
    found.next_farthest = distance;
  }
}

}  // namespace

void TrcSamples::Start(const TRCDocument& document) {
  markers_.resize(document.MarkerCount());
  usual_.resize(markers_.size());
  gap_begins_.resize(markers_.size(), 0);
  horizon_ = Horizon(static_cast<std::uint32_t>(document.Units()));
  const auto announced = static_cast<std::size_t>(std::max(document.NumFrames(), 0));
  measure_ = SubjectMeasure::ByStride(SubjectMeasure::StrideThrough(announced), markers_.size());
}

void TrcSamples::TakeFrame(const TRCDocument& document, std::span<const double> coordinates) {
  if (frames_ == 0) Start(document);
  const std::size_t count = coordinates.size() / kCoordinates;
  const double* at = coordinates.data();
  for (std::size_t marker = 0; marker < count; ++marker, at += kCoordinates) {
    if (usual_[marker].Holds(at)) continue;
    if (std::isnan(at[0])) {
      TakeDropout(marker);
    } else {
      TakeUnusual(marker, PositionAt(at));
    }
  }
  for (std::size_t marker = count; marker < width_; ++marker) TakeDropout(marker);
  width_ = count;
  if (measure_->LooksAt(frames_)) MeasureFrame(coordinates);
  ++frames_;
}

void TrcSamples::TakeDropout(std::size_t marker) {
  if (gap_begins_[marker]) return;
  gap_begins_[marker] = frames_;
  usual_[marker] = {};
}

void TrcSamples::TakeUnusual(std::size_t marker, const TRCPosition& position) {
  EndGap(marker);
  MarkerSamples& samples = markers_[marker];
  const double distance = DistanceOf(position);
  Take(frames_, position, distance, samples.extremes);
  const bool may_be_far = horizon_.MayHide(distance);
  if (may_be_far && horizon_.Hides(position.x, position.y, position.z)) {
    samples.far.push_back({frames_, position});
  }
  samples.lowest_z = std::min(samples.lowest_z, position.z);
  samples.highest_z = std::max(samples.highest_z, position.z);
  const double near = std::min(samples.extremes.next_farthest, horizon_.Distance());
  usual_[marker] = {near, samples.lowest_z, samples.highest_z};
}

void TrcSamples::EndGap(std::size_t marker) {
  std::optional<std::size_t>& begin = gap_begins_[marker];
  if (begin && *begin < frames_) markers_[marker].gaps.push_back({*begin, frames_});
  begin.reset();
}

void TrcSamples::MeasureFrame(std::span<const double> coordinates) {
  for (std::size_t marker = 0; marker < coordinates.size() / kCoordinates; ++marker) {
    const double* const at = coordinates.data() + kCoordinates * marker;
    if (std::isnan(at[0])) continue;
    const TRCPosition position = PositionAt(at);
    measure_->TakeAt(frames_, marker, {position.x, position.y, position.z});
  }
}

void TrcSamples::Finish(const TRCDocument& document) {
  if (frames_ == 0) Start(document);
  for (std::size_t marker = 0; marker < markers_.size(); ++marker) {
    EndGap(marker);
    markers_[marker].positions = frames_;
    for (const FrameGap& gap : markers_[marker].gaps) {
      markers_[marker].positions -= gap.end - gap.begin;
    }
  }
  subject_is_measured_ = measure_->Stride() == SubjectMeasure::StrideThrough(frames_);
  if (subject_is_measured_) subject_ = measure_->Finish();
}

}  // namespace orvane::trc
