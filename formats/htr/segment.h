#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formats/htr/frames.h"
#include "formats/math/euler_rotation.h"
#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"
#include "formats/text/watched_name.h"

// One bone of a motion file: its name, its place in the hierarchy, its base position and its
// motion.
//
// Lengths are in the calibration units of the document, angles are radians, axes are the file's (Y
// up; a bone's long axis is its local Y), all relative to the parent. Frame values are offsets from
// the base position: a frame's translation is added to the base translation, and its rotation
// stands to the right of the base rotation. Frames are counted from 0, whatever their number in the
// file.
namespace orvane {

class HtrSegment {
 public:
  HtrSegment() = default;
  explicit HtrSegment(std::string name) : name_(std::move(name)) {}

  // True when the file names the global frame as this segment's parent.
  [[nodiscard]] bool GetIsRoot() const { return is_root_; }
  void SetIsRoot(bool is_root) { is_root_ = is_root; }

  [[nodiscard]] std::string GetName() const { return name_.Get(); }
  // Renames the segment, one stored in a document too: the document finds it by its new name.
  void SetName(std::string name) { name_.Set(std::move(name)); }

  // Stores `parent`, which may be null, and lists this segment behind the parent's children. A
  // segment that is set twice is listed twice. Neither pointer owns: both segments must keep their
  // addresses, as the segments stored in one document do. Links may form a circle.
  void SetParent(HtrSegment* parent);
  HtrSegment* GetParent() const { return parent_; }
  int GetNumChildren() const { return static_cast<int>(children_.size()); }
  // Null when `index` is below 0 or not below the count.
  HtrSegment* GetChild(int index) const;
  // This segment or the first below it, depth first in the children's order, of that very name;
  // null when there is none. Takes any depth, circles and segments that are listed more than once.
  HtrSegment* FindDescendant(std::string_view name);

  Vector3 GetBaseTranslation() const { return base_translation_; }
  void SetBaseTranslation(double x, double y, double z) { base_translation_ = Vector3(x, y, z); }
  EulerRotation GetBaseRotation() const { return base_rotation_; }
  // Angles in the default Euler order.
  void SetBaseRotation(double x, double y, double z) { base_rotation_ = EulerRotation(x, y, z); }
  double GetBoneLength() const { return bone_length_; }
  void SetBoneLength(double length) { bone_length_ = length; }
  // The length by which a writer divides frame scales, when its document says so.
  double GetScaleReferenceLength() const { return scale_reference_length_; }
  void SetScaleReferenceLength(double length) { scale_reference_length_ = length; }

  std::size_t GetNumFrames() const { return frames_.Count(); }
  // Makes room for `count` frames in all.
  void ReserveFrames(std::size_t count) { frames_.Reserve(count); }
  // Appends one frame; its angles are in the default Euler order. Segments of a document share a
  // block: the first frame of one behind which another has got frames takes time for all that it
  // holds.
  void AddFrame(const HtrFrame& frame) {
    KeepOrderCode(EulerRotation::DefaultOrderCode());
    frames_.Append(frame);
  }
  void AddFrame(const Vector3& translation, const Vector3& angles, double scale);
  void AddFrame(const Vector3& translation, const EulerRotation& rotation, double scale);

  // The frame as stored. At or past the end: zero, and 1 for the scale.
  Vector3 GetFrameTranslation(std::size_t index) const {
    if (index >= GetNumFrames()) return Vector3();
    const HtrFrame& frame = frames_[index];
    return Vector3(frame[0], frame[1], frame[2]);
  }
  EulerRotation GetFrameRotation(std::size_t index) const {
    if (index >= GetNumFrames()) return EulerRotation();
    const HtrFrame& frame = frames_[index];
    return EulerRotation(frame[3], frame[4], frame[5], OrvaneEulerOrder(OrderCode(index)));
  }
  double GetFrameScale(std::size_t index) const;
  // Returns false, changing nothing, at or past the end.
  [[nodiscard]] bool SetFrameTranslation(std::size_t index, double x, double y, double z);

  // The frame with its base: base translation plus frame translation. At or past the end: zero.
  Vector3 GetFramePosition(std::size_t index) const;
  // The frame with its base: angles of base rotation times frame rotation (the frame's is applied
  // first) in the default Euler order. At or past the end: zero.
  EulerRotation GetFrameOrientation(std::size_t index) const {
    return GetFrameOrientation(index, RotationMatrix3(base_rotation_));
  }
  // The same, for `base`, the matrix of the base rotation, which is made once for many frames.
  EulerRotation GetFrameOrientation(std::size_t index, const RotationMatrix3& base) const;

  // Multiplies base translation, bone length and the translations of the first `frame_count`
  // frames, as far as there are so many. Angles and scales stay.
  void ScaleLengths(double factor, std::size_t frame_count);

 private:
  friend class HtrDocument;

  // REQUIRES: there is such a frame.
  [[nodiscard]] std::uint32_t OrderCode(std::size_t index) const {
    return order_codes_.empty() ? order_code_ : order_codes_[index];
  }
  // Of the frame that is added next.
  void KeepOrderCode(std::uint32_t code) {
    if (frames_.Count() > 0 && code == order_code_ && order_codes_.empty()) return;
    KeepOtherOrderCode(code);
  }
  void KeepOtherOrderCode(std::uint32_t code);

  // In the owning document; that of a copy is none, and one that is overwritten keeps its own.
  struct OwnIndex {
    OwnIndex() = default;
    OwnIndex(const OwnIndex& /*other*/) {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is assigned
    OwnIndex& operator=(const OwnIndex& /*other*/) { return *this; }

    std::size_t value = std::numeric_limits<std::size_t>::max();
  };

  bool is_root_ = false;
  WatchedName name_;  // the owning document watches it
  HtrSegment* parent_ = nullptr;
  std::vector<HtrSegment*> children_;
  Vector3 base_translation_;
  EulerRotation base_rotation_;
  double bone_length_ = 0.0;
  double scale_reference_length_ = 1.0;
  HtrSegmentFrames frames_;
  OwnIndex index_;
  std::uint32_t order_code_ = 0;            // of all frames, while they share it
  std::vector<std::uint32_t> order_codes_;  // of each; empty while they share one
};

}  // namespace orvane
