#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/check/plausibility.h"
#include "inspect/counts/dropouts.h"
#include "inspect/summary/subject_measure.h"

// What the samples of a TRC file come to, taken frame by frame, so that none of them need be kept.
// Frames and markers count from 0, lengths are in the file's unit. Nothing fails but for want of
// memory.

namespace orvane::trc {

// How far a position is from the origin along the axis where that is farthest.
[[nodiscard]] inline double DistanceOf(const TRCPosition& position) {
  return std::max({std::abs(position.x), std::abs(position.y), std::abs(position.z)});
}

// Distances are along an axis.
struct PositionExtremes {
  std::size_t zeros = 0;  // how many positions are exactly 0 0 0
  std::size_t first_zero = 0;
  double farthest = 0.0;              // from the origin
  TRCPosition at_farthest;            // the first position that is as far as that
  std::size_t first_farthest = 0;     // the frame of it
  std::size_t times_at_farthest = 0;  // how many positions are exactly this one
  double next_farthest = 0.0;         // of all others
};

struct FarPosition {
  std::size_t frame = 0;
  TRCPosition position;
};

struct MarkerSamples {
  std::size_t positions = 0;   // samples that are no dropouts
  std::vector<FrameGap> gaps;  // the others
  PositionExtremes extremes;
  std::vector<FarPosition> far;  // those beyond the horizon
  // Of all heights along Z. Without positions the first is above the second.
  double lowest_z = std::numeric_limits<double>::infinity();
  double highest_z = -std::numeric_limits<double>::infinity();
};

class TrcSamples {
 public:
  // Takes the next frame of `document`, whose header and markers have been read: x, y and z of its
  // first markers, as a TRCRow has them.
  void TakeFrame(const TRCDocument& document, std::span<const double> coordinates);

  // To be called once, behind the last frame. `document` is the same.
  void Finish(const TRCDocument& document);

  // After that:
  [[nodiscard]] std::size_t Frames() const { return frames_; }
  [[nodiscard]] const std::vector<MarkerSamples>& Markers() const { return markers_; }

  // Who or what moves is measured in some frames, spread over as many as are announced. Returns
  // false when there are so many more or fewer that it would have been others.
  [[nodiscard]] bool HasMeasuredSubject() const { return subject_is_measured_; }
  // REQUIRES: HasMeasuredSubject.
  [[nodiscard]] const std::optional<Subject>& MeasuredSubject() const { return subject_; }

 private:
  // What shows that the position of a marker changes nothing in its MarkerSamples: most do not.
  struct Usual {
    // Positions that are nearer than this, and whose x is not 0, are no extreme.
    double distance = 0.0;
    double lowest_z = std::numeric_limits<double>::infinity();
    double highest_z = -std::numeric_limits<double>::infinity();

    // False for a dropout too, and after one.
    [[nodiscard]] bool Holds(const double* position) const {
      return std::abs(position[0]) < distance && std::abs(position[1]) < distance &&
             std::abs(position[2]) < distance && position[0] != 0.0 && position[2] >= lowest_z &&
             position[2] <= highest_z;
    }
  };

  void Start(const TRCDocument& document);
  void TakeDropout(std::size_t marker);
  void EndGap(std::size_t marker);
  void TakeUnusual(std::size_t marker, const TRCPosition& position);
  void MeasureFrame(std::span<const double> coordinates);

  std::size_t frames_ = 0;
  std::vector<MarkerSamples> markers_;
  // Of each marker:
  std::vector<Usual> usual_;
  std::vector<std::optional<std::size_t>> gap_begins_;  // of the gap that it is in
  std::size_t width_ = 0;  // how many markers, the first ones, the row above has samples of
  Horizon horizon_{0};
  std::optional<SubjectMeasure> measure_;
  bool subject_is_measured_ = false;
  std::optional<Subject> subject_;
};

}  // namespace orvane::trc
