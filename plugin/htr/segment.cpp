#include "plugin/htr/segment.h"

#include <algorithm>
#include <unordered_set>

#include "plugin/math/rotation_matrix3.h"

namespace orvane {
namespace {

void Scale(Vector3& vector, double factor) {
  for (unsigned int index = 0; index < 3; ++index) vector[index] *= factor;
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

void HtrSegment::ReserveFrames(std::size_t count) {
  frame_translations_.reserve(count);
  frame_rotations_.reserve(count);
  frame_scales_.reserve(count);
}

void HtrSegment::AddFrame(const Vector3& translation, const Vector3& angles, double scale) {
  AddFrame(translation, EulerRotation(angles.x(), angles.y(), angles.z()), scale);
}

void HtrSegment::AddFrame(const Vector3& translation, const EulerRotation& rotation, double scale) {
  frame_translations_.push_back(translation);
  frame_rotations_.push_back(rotation);
  frame_scales_.push_back(scale);
}

Vector3 HtrSegment::GetFrameTranslation(std::size_t index) const {
  return index < GetNumFrames() ? frame_translations_[index] : Vector3();
}

EulerRotation HtrSegment::GetFrameRotation(std::size_t index) const {
  return index < GetNumFrames() ? frame_rotations_[index] : EulerRotation();
}

double HtrSegment::GetFrameScale(std::size_t index) const {
  return index < GetNumFrames() ? frame_scales_[index] : 1.0;
}

bool HtrSegment::SetFrameTranslation(std::size_t index, double x, double y, double z) {
  if (index >= GetNumFrames()) return false;
  frame_translations_[index] = Vector3(x, y, z);
  return true;
}

Vector3 HtrSegment::GetFramePosition(std::size_t index) const {
  if (index >= GetNumFrames()) return Vector3();
  const Vector3& offset = frame_translations_[index];
  return Vector3(offset.x() + base_translation_.x(), offset.y() + base_translation_.y(),
                 offset.z() + base_translation_.z());
}

EulerRotation HtrSegment::GetFrameOrientation(std::size_t index) const {
  if (index >= GetNumFrames()) return EulerRotation();
  return EulerRotation(RotationMatrix3(base_rotation_) * RotationMatrix3(frame_rotations_[index]));
}

void HtrSegment::ScaleLengths(double factor, std::size_t frame_count) {
  Scale(base_translation_, factor);
  bone_length_ *= factor;
  const std::size_t count = std::min(frame_count, GetNumFrames());
  for (std::size_t index = 0; index < count; ++index) Scale(frame_translations_[index], factor);
}

}  // namespace orvane
