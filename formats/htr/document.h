#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/htr/frames_view.h"
#include "formats/htr/segment.h"
#include "formats/text/name_index.h"

// A motion file in memory: the settings of its header and its segments in file order. Reading and
// writing files is not done here. Unit and axis codes are those of formats/units.
namespace orvane {

// Owns its segments. Their addresses stay until Clear or the end of the document.
class HtrDocument {
 public:
  HtrDocument() = default;
  HtrDocument(const HtrDocument&) = delete;
  HtrDocument& operator=(const HtrDocument&) = delete;

  // Deletes all segments and sets the header back to its defaults.
  // Intended: ScaleFactor and the two scale flags stay as they are.
  void Clear();

  // The unit of all lengths.
  std::uint32_t GetCalibrationUnits() const { return calibration_units_; }
  void SetCalibrationUnits(std::uint32_t code) { calibration_units_ = code; }
  // The unit of the angles in the file; in memory they are radians.
  std::uint32_t GetRotationUnits() const { return rotation_units_; }
  void SetRotationUnits(std::uint32_t code) { rotation_units_ = code; }
  std::uint32_t GetBoneLengthAxis() const { return bone_length_axis_; }
  void SetBoneLengthAxis(std::uint32_t axis) { bone_length_axis_ = axis; }
  std::uint32_t GetGlobalAxisofGravity() const { return global_axis_of_gravity_; }
  void SetGlobalAxisofGravity(std::uint32_t axis) { global_axis_of_gravity_ = axis; }
  // Frames per second.
  std::int32_t GetDataFrameRate() const { return data_frame_rate_; }
  void SetDataFrameRate(std::int32_t rate) { data_frame_rate_ = rate; }
  // Frames per segment as the header announces them; a segment may hold more or fewer.
  std::uint32_t GetNumFrames() const { return num_frames_; }
  void SetNumFrames(std::uint32_t count) { num_frames_ = count; }
  // The number that the first frame has in the file.
  std::int32_t GetStartFrame() const { return start_frame_; }
  void SetStartFrame(std::int32_t number) { start_frame_ = number; }
  // Whether a writer prints the frames' scales, or 1 in their place.
  [[nodiscard]] bool GetWriteBoneScale() const { return write_bone_scale_; }
  void SetWriteBoneScale(bool write) { write_bone_scale_ = write; }
  // Whether a writer divides the frames' scales by the segment's reference length.
  [[nodiscard]] bool GetNormalizeBoneScale() const { return normalize_bone_scale_; }
  void SetNormalizeBoneScale(bool normalize) { normalize_bone_scale_ = normalize; }
  // The header's value as read; nothing here is multiplied by it.
  double GetScaleFactor() const { return scale_factor_; }
  void SetScaleFactor(double factor) { scale_factor_ = factor; }

  std::int32_t GetNumSegments() const { return static_cast<std::int32_t>(segments_.size()); }
  std::deque<HtrSegment>& segments() { return segments_; }
  const std::deque<HtrSegment>& segments() const { return segments_; }

  // Copies `segment` behind the others and returns the stored copy, which the document owns.
  // Returns null, adding nothing, when its name is taken (case counts) or holds a blank. Adds
  // nothing either when it throws std::bad_alloc.
  HtrSegment* AddSegment(const HtrSegment& segment);

  // The first segment of that very name, in constant time; null when there is none.
  HtrSegment* FindSegment(std::string_view name);
  // Where `segment` stands among the segments, in constant time; nothing when it is not of this
  // document.
  [[nodiscard]] std::optional<std::size_t> IndexOf(const HtrSegment& segment) const {
    const std::size_t index = segment.index_.value;
    const bool is_own = index < segments_.size() && &segments_[index] == &segment;
    return is_own ? std::optional<std::size_t>(index) : std::nullopt;
  }
  // The first segment that is a root; null when there is none.
  HtrSegment* FindRootSegment();
  std::vector<std::string> GetSegmentNames() const;

  // Makes room for so many frames of all segments together, one segment after the other.
  void ReserveFrames(std::size_t count) { frames_->reserve(count); }

  // All frames as an array. The first time, or when something was added since, it may take time and
  // memory for all of them, as it does when segments hold different numbers of frames. From then on
  // the same array is handed out, until segments or frames are added, or the document is cleared,
  // read or gone. Setting and scaling translations changes it in place. Throws ArrayTooLarge,
  // changing nothing, when few segments hold many frames and many hold few.
  [[nodiscard]] HtrFramesView FramesView();

  // Multiplies every segment's base translation, bone length and the translations of its first
  // NumFrames frames. Angles and scales stay.
  void ScaleLengths(double factor);
  // Scales all lengths from the current unit to `code` and stores that as the unit.
  void ConvertCalibrationUnits(std::uint32_t code);

 private:
  // Tells the name of the segment at an index.
  [[nodiscard]] auto NameAt() const {
    return [this](std::size_t index) -> const std::string& { return segments_[index].name_.Get(); };
  }
  void RefreshNames();
  [[nodiscard]] bool AreFramesAligned(std::size_t most) const;
  void AlignFrames(std::size_t most);
  [[nodiscard]] bool IsExpected(std::string_view name) const;

  std::deque<HtrSegment> segments_;
  std::shared_ptr<HtrFrameBlock> frames_ = std::make_shared<HtrFrameBlock>();  // of the segments
  std::uint32_t calibration_units_ = 0;
  std::uint32_t rotation_units_ = 0;
  std::uint32_t bone_length_axis_ = 1;
  std::uint32_t global_axis_of_gravity_ = 1;
  std::int32_t data_frame_rate_ = 60;
  std::uint32_t num_frames_ = 0;
  std::int32_t start_frame_ = 1;
  bool write_bone_scale_ = true;
  bool normalize_bone_scale_ = false;
  double scale_factor_ = 1.0;

  NameIndex by_name_;  // the first segment of each name

  // The index behind the segment found last. Files mostly name segments in their order, and of many
  // segments the next one is nearer at hand than the table.
  std::size_t expected_ = 0;
  bool names_changed_ = false;
};

}  // namespace orvane
