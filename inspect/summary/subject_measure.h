#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

#include "formats/htr/document.h"
#include "formats/pose/pose_walk.h"
#include "formats/trc/document.h"
#include "inspect/summary/subject.h"

// Measures a subject by the points of some frames, spread over all of a motion, so that whoever
// walks over it for something else has it measured on the way. Frames and tracks, of which each
// belongs to a joint or a marker, count from 0. Nothing fails but for want of memory.

namespace orvane {

class SubjectMeasure {
 public:
  // Of a motion of so many frames and tracks.
  SubjectMeasure(std::size_t frames, std::size_t tracks)
      : SubjectMeasure(StrideThrough(frames),
                       (frames + StrideThrough(frames) - 1) / StrideThrough(frames), tracks) {}

  // Of any motion that is looked at in each `stride`th frame.
  [[nodiscard]] static SubjectMeasure ByStride(std::size_t stride, std::size_t tracks) {
    return {stride, kMostFrames, tracks};
  }

  // The stride from one frame of a motion that is looked at to the next, when it has so many
  // frames.
  [[nodiscard]] static std::size_t StrideThrough(std::size_t frames) {
    return std::max<std::size_t>(1, (frames + kMostFrames - 1) / kMostFrames);
  }
  [[nodiscard]] std::size_t Stride() const { return stride_; }

  // How many frames are looked at, and which these are.
  [[nodiscard]] std::size_t Count() const { return boxes_.size(); }
  [[nodiscard]] std::size_t FrameAt(std::size_t index) const { return index * stride_; }

  [[nodiscard]] bool LooksAt(std::size_t frame) const {
    return frame % stride_ == 0 && frame / stride_ < Count();
  }

  // Takes a point of the frame FrameAt(index), in any order of tracks, and in that of frames for
  // each. A point that is nowhere, or infinitely far, is left out.
  void Take(std::size_t index, std::size_t track, const Point& point) {
    if (!std::isfinite(point[0] + point[1] + point[2])) return;
    boxes_[index].Include(point);
    Track& taken = tracks_[track];
    if (taken.start && taken.last_index + 1 == index) steps_[index].Include(taken.last, point);
    taken.Include(point);
    taken.last = point;
    taken.last_index = index;
  }

  // The same of `frame`. REQUIRES: that is looked at.
  void TakeAt(std::size_t frame, std::size_t track, const Point& point) {
    Take(frame / stride_, track, point);
  }

  // Takes the points of a walk that is at `frame`, if that is looked at; a track is an entry.
  // REQUIRES: `frame` is one of the motion.
  void TakePose(std::size_t frame, const PoseWalk& walk) {
    if (!LooksAt(frame)) return;
    for (const std::size_t entry : walk.Holding()) TakeAt(frame, entry, walk.PositionOf(entry));
  }

  // Nothing when no frame has two points. To be called once, at the end.
  [[nodiscard]] std::optional<Subject> Finish();

 private:
  SubjectMeasure(std::size_t stride, std::size_t count, std::size_t tracks)
      : stride_(stride), boxes_(count), steps_(count), tracks_(tracks) {}

  static constexpr std::size_t kMostFrames = 200;  // that are looked at
  static constexpr double kInfinity = std::numeric_limits<double>::infinity();

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

  void MeasureAxis(std::size_t axis, Subject& subject) const;
  double WayOfSteps() const;
  static double RoomFor(const Subject& subject, const FrameBox& all);

  std::size_t stride_;
  std::vector<FrameBox> boxes_;
  std::vector<Step> steps_;
  std::vector<Track> tracks_;
};

// Of what hangs from the roots; nothing when no frame has two points.
[[nodiscard]] std::optional<Subject> MeasureSubject(const HtrDocument& document);
[[nodiscard]] std::optional<Subject> MeasureSubject(const TRCDocument& document);

}  // namespace orvane
