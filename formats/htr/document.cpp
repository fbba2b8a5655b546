#include "formats/htr/document.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

#include "formats/array/array_too_large.h"
#include "formats/units/units.h"

namespace orvane {

void HtrDocument::Clear() {
  by_name_.Clear();
  segments_.clear();
  HtrFrameBlock().swap(*frames_);
  expected_ = 0;
  calibration_units_ = kMillimeters;
  rotation_units_ = kDegrees;
  bone_length_axis_ = kAxisY;
  global_axis_of_gravity_ = kAxisY;
  data_frame_rate_ = 60;
  num_frames_ = 0;
  start_frame_ = 1;
}

HtrSegment* HtrDocument::AddSegment(const HtrSegment& segment) {
  const std::string& name = segment.name_.Get();
  if (name.find(' ') != std::string::npos) return nullptr;
  if (names_changed_) RefreshNames();
  by_name_.MakeRoom();
  HtrSegment& stored = segments_.emplace_back(segment);
  const std::size_t index = segments_.size() - 1;
  if (!by_name_.Add(stored.name_.Get(), index, NameAt())) {
    segments_.pop_back();
    return nullptr;
  }
  stored.index_.value = index;
  stored.frames_.Share(frames_);
  stored.name_.Watch(names_changed_);
  return &stored;
}

HtrSegment* HtrDocument::FindSegment(std::string_view name) {
  if (names_changed_) RefreshNames();
  if (IsExpected(name)) return &segments_[expected_++];
  const auto found = by_name_.Find(name, NameAt());
  if (!found) return nullptr;
  expected_ = *found + 1;
  return &segments_[*found];
}

bool HtrDocument::IsExpected(std::string_view name) const {
  const bool names_differ = by_name_.Size() == segments_.size();
  return names_differ && expected_ < segments_.size() && segments_[expected_].name_.Get() == name;
}

HtrSegment* HtrDocument::FindRootSegment() {
  for (HtrSegment& segment : segments_) {
    if (segment.is_root_) return &segment;
  }
  return nullptr;
}

std::vector<std::string> HtrDocument::GetSegmentNames() const {
  std::vector<std::string> names;
  names.reserve(segments_.size());
  for (const HtrSegment& segment : segments_) names.push_back(segment.name_.Get());
  return names;
}

HtrFramesView HtrDocument::FramesView() {
  std::size_t most = 0;
  for (const HtrSegment& segment : segments_) most = std::max(most, segment.GetNumFrames());
  if (!AreFramesAligned(most)) AlignFrames(most);
  constexpr std::size_t kNumbers = std::tuple_size_v<HtrFrame>;
  return {most == 0 ? nullptr : frames_->front().data(), segments_.size(), most, kNumbers * most,
          kNumbers};
}

// Whether the segments are as far from each other in their block as `most` frames take, of which
// those that a segment lacks are not of another: they come from AlignFrames.
bool HtrDocument::AreFramesAligned(std::size_t most) const {
  if (frames_->size() < most * segments_.size()) return false;
  std::size_t begin = 0;
  for (const HtrSegment& segment : segments_) {
    if (!segment.frames_.BeginAt(frames_, begin)) return false;
    begin += most;
  }
  return true;
}

void HtrDocument::AlignFrames(std::size_t most) {
  std::uint64_t held = 0;
  for (const HtrSegment& segment : segments_) held += segment.GetNumFrames();
  RequireProportion(sizeof(HtrFrame) * std::uint64_t{most} * segments_.size(),
                    sizeof(HtrFrame) * held);
  HtrFrame missing;
  missing.fill(std::numeric_limits<double>::quiet_NaN());
  auto aligned = std::make_shared<HtrFrameBlock>(most * segments_.size(), missing);
  std::size_t begin = 0;
  for (HtrSegment& segment : segments_) {
    const std::size_t count = segment.GetNumFrames();
    for (std::size_t index = 0; index < count; ++index) {
      (*aligned)[begin + index] = std::as_const(segment.frames_)[index];
    }
    segment.frames_ = HtrSegmentFrames(aligned, begin, count);
    begin += most;
  }
  frames_ = std::move(aligned);
}

void HtrDocument::ScaleLengths(double factor) {
  for (HtrSegment& segment : segments_) segment.ScaleLengths(factor, num_frames_);
}

void HtrDocument::ConvertCalibrationUnits(std::uint32_t code) {
  if (code != calibration_units_) ScaleLengths(LengthFactor(calibration_units_, code));
  calibration_units_ = code;
}

void HtrDocument::RefreshNames() {
  by_name_.Clear();
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    by_name_.Add(segments_[i].name_.Get(), i, NameAt());
  }
  names_changed_ = false;
}

}  // namespace orvane
