#include "formats/csv/writer.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

#include "formats/csv/table.h"
#include "formats/math/quaternion.h"
#include "formats/math/rotation_matrix3.h"
#include "formats/pose/pose_walk.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

class MarkerSource final : public CsvSource {
 public:
  explicit MarkerSource(const TRCDocument& document) : document_(document) {
    for (const TRCMarker& marker : document.markers()) {
      if (!marker.IsEnabled()) continue;
      markers_.push_back(&marker);
      frames_ = std::max(frames_, marker.SampleCount());
    }
  }

  std::string_view PartsName() const override { return "marker"; }

  std::vector<std::string> Parts() const override {
    std::vector<std::string> names;
    names.reserve(markers_.size());
    for (const TRCMarker* marker : markers_) names.push_back(marker->Name());
    return names;
  }

  std::vector<CsvColumn> Columns() const override {
    const std::string_view unit =
        CalibrationUnitsName(static_cast<std::uint32_t>(document_.Units()));
    return {{"x", unit}, {"y", unit}, {"z", unit}};
  }

  std::size_t Frames() const override { return frames_; }
  std::int64_t FirstFrame() const override { return document_.FirstFrame(); }
  void MoveTo(std::size_t frame) override { frame_ = frame; }

  bool Get(std::size_t index, std::span<double> values) const override {
    return markers_[index]->GetSample(frame_, values[0], values[1], values[2]);
  }

 private:
  const TRCDocument& document_;
  std::vector<const TRCMarker*> markers_;
  std::size_t frames_ = 0;
  std::size_t frame_ = 0;
};

constexpr std::size_t kNoEntry = std::numeric_limits<std::size_t>::max();

// Segments in the document's order, wherever they stand in the hierarchy.
class SegmentSource final : public CsvSource {
 public:
  SegmentSource(const HtrDocument& document, const CsvManner& manner)
      : document_(document),
        manner_(manner),
        angle_factor_(document.GetRotationUnits() == kDegrees ? kDegreesPerRadian : 1.0),
        hierarchy_(ListHierarchy(document)),
        walk_(hierarchy_, PoseParts::kPositionsAndRotations),
        is_holding_(hierarchy_.size()) {
    std::unordered_map<const HtrSegment*, std::size_t> entries;
    for (std::size_t entry = 0; entry < hierarchy_.size(); ++entry) {
      entries.emplace(hierarchy_[entry].segment, entry);
    }
    for (const HtrSegment& segment : document.segments()) {
      const auto entry = entries.find(&segment);
      segments_.push_back({&segment, entry == entries.end() ? kNoEntry : entry->second});
      frames_ = std::max(frames_, segment.GetNumFrames());
    }
  }

  std::string_view PartsName() const override { return "segment"; }
  std::vector<std::string> Parts() const override { return document_.GetSegmentNames(); }

  std::vector<CsvColumn> Columns() const override {
    const std::string_view unit = CalibrationUnitsName(document_.GetCalibrationUnits());
    const std::string_view angle = document_.GetRotationUnits() == kDegrees ? "deg" : "rad";
    std::vector<CsvColumn> columns = {{"x", unit}, {"y", unit}, {"z", unit}};
    if (manner_.rotations == CsvRotations::kEuler) {
      columns.insert(columns.end(), {{"rx", angle}, {"ry", angle}, {"rz", angle}});
    } else {
      columns.insert(columns.end(), {{"qx", ""}, {"qy", ""}, {"qz", ""}, {"qw", ""}});
    }
    return columns;
  }

  std::size_t Frames() const override { return frames_; }
  std::int64_t FirstFrame() const override { return document_.GetStartFrame(); }

  void MoveTo(std::size_t frame) override {
    frame_ = frame;
    if (manner_.space != CsvSpace::kWorld) return;
    walk_.MoveTo(frame);
    std::fill(is_holding_.begin(), is_holding_.end(), false);
    for (const std::size_t entry : walk_.Holding()) is_holding_[entry] = true;
  }

  bool Get(std::size_t index, std::span<double> values) const override {
    const auto& [segment, entry] = segments_[index];
    if (manner_.space == CsvSpace::kWorld) {
      if (entry == kNoEntry || !is_holding_[entry]) return false;
      const Point& place = walk_.PositionOf(entry);
      std::copy(place.begin(), place.end(), values.begin());
      PutRotation(walk_.WorldRotationOf(entry).Matrix(), values.subspan(place.size()));
      return true;
    }
    if (frame_ >= segment->GetNumFrames()) return false;
    const Vector3 place = segment->GetFramePosition(frame_);
    for (unsigned axis = 0; axis < 3; ++axis) values[axis] = place[axis];
    PutRotation(RotationMatrix3(segment->GetBaseRotation()) *
                    RotationMatrix3(segment->GetFrameRotation(frame_)),
                values.subspan(3));
    return true;
  }

 private:
  struct Part {
    const HtrSegment* segment;
    std::size_t entry;  // in the hierarchy
  };

  void PutRotation(const RotationMatrix3& matrix, std::span<double> values) const {
    if (manner_.rotations == CsvRotations::kQuaternion) {
      const Quaternion rotation(matrix);
      values[0] = rotation.x();
      values[1] = rotation.y();
      values[2] = rotation.z();
      values[3] = rotation.w();
      return;
    }
    EulerRotation angles(0, 0, 0, OrvaneEulerOrder());
    angles.Set(matrix);
    // No -0.
    for (unsigned axis = 0; axis < 3; ++axis) values[axis] = angles[axis] * angle_factor_ + 0.0;
  }

  const HtrDocument& document_;
  const CsvManner& manner_;
  const double angle_factor_;
  const std::vector<HierarchyEntry> hierarchy_;
  PoseWalk walk_;
  std::vector<bool> is_holding_;
  std::vector<Part> segments_;
  std::size_t frames_ = 0;
  std::size_t frame_ = 0;
};

}  // namespace

void PrintCsv(const TRCDocument& document, const TextTaker& take, const CsvManner& manner) {
  MarkerSource source(document);
  PrintTable(source, take, manner);
}

void PrintCsv(const HtrDocument& document, const TextTaker& take, const CsvManner& manner) {
  SegmentSource source(document, manner);
  PrintTable(source, take, manner);
}

}  // namespace orvane
