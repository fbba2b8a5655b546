#include "web/core/motion_take.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <utility>

#include "formats/pose/hierarchy.h"
#include "formats/pose/pose_walk.h"
#include "formats/units/units.h"
#include "inspect/check/htr_check.h"
#include "inspect/summary/subject_measure.h"
#include "web/core/take_reading.h"
#include "web/core/track_room.h"

namespace web {
namespace {

using orvane::Bounds;
using orvane::HierarchyEntry;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::Point;
using orvane::PoseParts;
using orvane::PoseWalk;

constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();

std::size_t FrameCountOf(const HtrDocument& document) {
  std::size_t frames = 0;
  for (const HtrSegment& segment : document.segments()) {
    frames = std::max(frames, segment.GetNumFrames());
  }
  return frames;
}

std::size_t HeldFramesOf(const HtrDocument& document) {
  std::size_t frames = 0;
  for (const HtrSegment& segment : document.segments()) frames += segment.GetNumFrames();
  return frames;
}

std::int32_t ParentOf(const HtrDocument& document, const HtrSegment& segment) {
  const HtrSegment* const parent = segment.GetParent();
  if (segment.GetIsRoot() || parent == nullptr) return -1;
  const auto index = document.IndexOf(*parent);
  return index ? static_cast<std::int32_t>(*index) : -1;
}

// Goes over all frames of a motion once, and keeps what there is to see of it.
class TrackMaking {
 public:
  explicit TrackMaking(const HtrDocument& document)
      : document_(document),
        hierarchy_(ListHierarchy(document)),
        measure_(MostFramesOf(hierarchy_), hierarchy_.size()) {
    indices_.reserve(hierarchy_.size());
    for (const HierarchyEntry& entry : hierarchy_) {
      indices_.push_back(document.IndexOf(*entry.segment).value_or(0));
    }
  }

  Tracks Make() {
    const std::size_t objects = document_.segments().size();
    tracks_.positions = MakeTrackRoom(FrameCountOf(document_), objects, HeldFramesOf(document_));
    tracks_.ends = tracks_.positions;
    PoseWalk walk(hierarchy_, PoseParts::kPositionsAndRotations);
    for (std::size_t frame = 0; frame < MostFramesOf(hierarchy_); ++frame) {
      walk.MoveTo(frame);
      for (const std::size_t entry : walk.Holding()) {
        Keep(walk, entry, kAxes * (frame * objects + indices_[entry]));
      }
      measure_.TakePose(frame, walk);
    }
    if (bounds_.least[0] <= bounds_.most[0]) tracks_.bounds = bounds_;
    const auto subject = measure_.Finish();
    tracks_.stands_along_z = subject && SeemsToStandAlongZ(*subject);
    return std::move(tracks_);
  }

 private:
  void Keep(const PoseWalk& walk, std::size_t entry, std::size_t at) {
    const Point& position = walk.PositionOf(entry);
    const double length = hierarchy_[entry].segment->GetBoneLength();
    const Point end = walk.WorldRotationOf(entry).Moved(position, {0.0, length, 0.0});
    for (std::size_t axis = 0; axis < kAxes; ++axis) {
      tracks_.positions[at + axis] = static_cast<float>(position[axis]);
      tracks_.ends[at + axis] = static_cast<float>(end[axis]);
      bounds_.least[axis] = std::min(bounds_.least[axis], position[axis]);
      bounds_.most[axis] = std::max(bounds_.most[axis], position[axis]);
    }
  }

  static constexpr double kInfinity = std::numeric_limits<double>::infinity();

  const HtrDocument& document_;
  const std::vector<HierarchyEntry> hierarchy_;
  std::vector<std::size_t> indices_;  // of the segments in the document, by entry
  orvane::SubjectMeasure measure_;
  Bounds bounds_{{kInfinity, kInfinity, kInfinity}, {-kInfinity, -kInfinity, -kInfinity}};
  Tracks tracks_;
};

// The segment and all above it, topmost first; nothing when it hangs from no root.
std::vector<HierarchyEntry> ListWayTo(const HtrDocument& document, const HtrSegment& segment) {
  const std::vector<HierarchyEntry> all = ListHierarchy(document);
  const auto is_meant = [&segment](const HierarchyEntry& each) { return each.segment == &segment; };
  const auto found = std::find_if(all.begin(), all.end(), is_meant);
  std::vector<HierarchyEntry> way;
  if (found == all.end()) return way;
  way.resize(found->depth + 1);
  auto entry = static_cast<std::size_t>(found - all.begin());
  for (std::size_t depth = way.size(); depth-- > 0; entry = all[entry].parent) {
    way[depth] = {all[entry].segment, depth == 0 ? 0 : depth - 1, depth};
  }
  return way;
}

std::vector<double> WorldCurve(const HtrDocument& document, const HtrSegment& segment) {
  std::vector<HierarchyEntry> way = ListWayTo(document, segment);
  std::vector<double> curve;
  if (way.empty()) return curve;
  const std::size_t last = way.size() - 1;
  curve.reserve(kAxes * segment.GetNumFrames());
  PoseWalk walk(std::move(way), PoseParts::kPositions);
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    walk.MoveTo(frame);
    const Point& position = walk.PositionOf(last);
    curve.insert(curve.end(), position.begin(), position.end());
  }
  return curve;
}

std::vector<double> OwnCurve(const HtrSegment& segment, CurveOf what) {
  std::vector<double> curve;
  curve.reserve(kAxes * segment.GetNumFrames());
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const orvane::Vector3 position = segment.GetFramePosition(frame);
    const orvane::EulerRotation angles = segment.GetFrameRotation(frame);
    for (unsigned axis = 0; axis < kAxes; ++axis) {
      curve.push_back(what == CurveOf::kRotation ? angles[axis] * orvane::kDegreesPerRadian
                                                 : position[axis]);
    }
  }
  return curve;
}

}  // namespace

MotionTake::MotionTake(const std::string& path) : Take(path) {
  const auto check = [this](const std::string& name, orvane::FileSource& source) {
    return CheckHtr(name, source, document_);
  };
  const auto why_empty = [this] {
    return std::string(document_.segments().empty() ? "The file holds no segments" : "");
  };
  SetChecked(ReadChecked(path, check, why_empty));
}

Header MotionTake::GetHeader() const {
  Header header;
  header.first_frame = document_.GetStartFrame();
  orvane::FileSource source = OpenFile(Path());
  header.rate_text = RateTextsOfHtr(source).data;
  header.rate = orvane::ParseFrameRate(header.rate_text);
  header.rate_taken = document_.GetDataFrameRate();
  header.length_unit = document_.GetCalibrationUnits();
  return header;
}

Contents MotionTake::GetContents() const {
  Contents contents;
  contents.frames = FrameCountOf(document_);
  const std::size_t count = document_.segments().size();
  contents.objects.reserve(count);
  contents.parents.reserve(count);
  contents.held.reserve(count);
  for (const HtrSegment& segment : document_.segments()) {
    const std::size_t held = segment.GetNumFrames();
    if (held < contents.frames) {
      contents.gaps.push_back({contents.objects.size(), held, contents.frames});
    }
    contents.objects.push_back(segment.GetName());
    contents.parents.push_back(ParentOf(document_, segment));
    contents.held.push_back(held);
  }
  return contents;
}

Tracks MotionTake::MakeTracks() const { return TrackMaking(document_).Make(); }

std::vector<double> MotionTake::MakeCurve(std::size_t object, CurveOf what) const {
  const HtrSegment& segment = document_.segments()[object];
  std::vector<double> curve =
      what == CurveOf::kPosition ? WorldCurve(document_, segment) : OwnCurve(segment, what);
  curve.resize(kAxes * FrameCountOf(document_), kNowhere);
  return curve;
}

}  // namespace web
