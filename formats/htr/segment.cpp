#include "formats/htr/segment.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace orvane {
namespace {

template <typename Three>
void Scale(Three& three, double factor) {
  for (unsigned int index = 0; index < 3; ++index) three[index] *= factor;
}

}  // namespace

void HtrSegment::SetParent(HtrSegment* parent) {
  parent_ = parent;
  if (parent != nullptr) parent->children_.push_back(this);
}

HtrSegment* HtrSegment::GetChild(int index) const {
  if (index < 0 || index >= GetNumChildren()) return nullptr;
  return children_[static_cast<std::size_t>(index)];
}

HtrSegment* HtrSegment::FindDescendant(std::string_view name) {
  // A stack of our own, since a file may chain segments deeper than the program's stack reaches.
  std::vector<HtrSegment*> pending = {this};
  std::unordered_set<HtrSegment*> seen;
  while (!pending.empty()) {
    HtrSegment* segment = pending.back();
    pending.pop_back();
    if (!seen.insert(segment).second) continue;
    if (segment->name_.Get() == name) return segment;
    pending.insert(pending.end(), segment->children_.rbegin(), segment->children_.rend());
  }
  return nullptr;
}

void HtrSegment::AddFrame(const Vector3& translation, const Vector3& angles, double scale) {
  AddFrame(translation, EulerRotation(angles.x(), angles.y(), angles.z()), scale);
}

void HtrSegment::KeepOtherOrderCode(std::uint32_t code) {
  if (frames_.Count() == 0) {
    order_code_ = code;
    order_codes_.clear();
  }
  if (code == order_code_ && order_codes_.empty()) return;
  order_codes_.resize(frames_.Count(), order_code_);
  order_codes_.push_back(code);
}

void HtrSegment::AddFrame(const Vector3& translation, const EulerRotation& rotation, double scale) {
  KeepOrderCode(rotation.order().code());
  frames_.Append({translation[0], translation[1], translation[2], rotation[0], rotation[1],
                  rotation[2], scale});
}

double HtrSegment::GetFrameScale(std::size_t index) const {
  return index < GetNumFrames() ? frames_[index][6] : 1.0;
}

bool HtrSegment::SetFrameTranslation(std::size_t index, double x, double y, double z) {
  if (index >= GetNumFrames()) return false;
  const std::array translation{x, y, z};
  std::copy(translation.begin(), translation.end(), frames_[index].begin());
  return true;
}

Vector3 HtrSegment::GetFramePosition(std::size_t index) const {
  if (index >= GetNumFrames()) return Vector3();
  const Vector3 offset = GetFrameTranslation(index);
  return Vector3(offset.x() + base_translation_.x(), offset.y() + base_translation_.y(),
                 offset.z() + base_translation_.z());
}

EulerRotation HtrSegment::GetFrameOrientation(std::size_t index,
                                              const RotationMatrix3& base) const {
  if (index >= GetNumFrames()) return EulerRotation();
  return EulerRotation(base * RotationMatrix3(GetFrameRotation(index)));
}

void HtrSegment::ScaleLengths(double factor, std::size_t frame_count) {
  Scale(base_translation_, factor);
  bone_length_ *= factor;
  const std::size_t count = std::min(frame_count, GetNumFrames());
  for (std::size_t index = 0; index < count; ++index) Scale(frames_[index], factor);
}

}  // namespace orvane
