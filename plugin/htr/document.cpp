#include "plugin/htr/document.h"

#include "plugin/units/units.h"

namespace orvane {

void HtrDocument::Clear() {
  by_name_.clear();
  segments_.clear();
  calibration_units_ = kMillimetres;
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
  if (FindSegment(name) != nullptr) return nullptr;
  HtrSegment& stored = segments_.emplace_back(segment);
  stored.name_.Watch(names_changed_);
  by_name_.emplace(stored.name_.Get(), &stored);
  return &stored;
}

HtrSegment* HtrDocument::FindSegment(std::string_view name) {
  if (names_changed_) RefreshNames();
  const auto found = by_name_.find(name);
  return found == by_name_.end() ? nullptr : found->second;
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

void HtrDocument::ScaleLengths(double factor) {
  for (HtrSegment& segment : segments_) segment.ScaleLengths(factor, num_frames_);
}

void HtrDocument::ConvertCalibrationUnits(std::uint32_t code) {
  if (code != calibration_units_) ScaleLengths(LengthFactor(calibration_units_, code));
  calibration_units_ = code;
}

void HtrDocument::RefreshNames() {
  by_name_.clear();
  for (HtrSegment& segment : segments_) by_name_.emplace(segment.name_.Get(), &segment);
  names_changed_ = false;
}

}  // namespace orvane
