#include "python/binding/motion_take.h"

#include <algorithm>
#include <unordered_map>

namespace binding {
namespace {

using orvane::HtrDocument;
using orvane::HtrSegment;

void CopySegment(const HtrSegment& segment, std::size_t name, FrameArray& values) {
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const orvane::Vector3 translation = segment.GetFrameTranslation(frame);
    const orvane::EulerRotation rotation = segment.GetFrameRotation(frame);
    double* const row = values.Row(frame, name);
    for (unsigned axis = 0; axis < 3; ++axis) {
      row[MotionTake::kTranslation + axis] = translation[axis];
      row[MotionTake::kAngles + axis] = rotation[axis];
    }
    row[MotionTake::kScale] = segment.GetFrameScale(frame);
  }
}

FrameArray ValuesOf(const HtrDocument& document) {
  FrameArray values(FrameCountOf(document), document.segments().size(), MotionTake::kNumbers);
  std::size_t name = 0;
  for (const HtrSegment& segment : document.segments()) CopySegment(segment, name++, values);
  return values;
}

}  // namespace

const FrameArray& MotionTake::Values() const {
  std::call_once(made_, [this] { values_.emplace(ValuesOf(document_)); });
  return *values_;
}

std::size_t FrameCountOf(const HtrDocument& document) {
  std::size_t frames = 0;
  for (const HtrSegment& segment : document.segments()) {
    frames = std::max(frames, segment.GetNumFrames());
  }
  return frames;
}

std::vector<std::int64_t> ParentsOf(const HtrDocument& document) {
  std::unordered_map<const HtrSegment*, std::int64_t> index_of;
  for (const HtrSegment& segment : document.segments()) {
    index_of.emplace(&segment, static_cast<std::int64_t>(index_of.size()));
  }
  std::vector<std::int64_t> parents;
  parents.reserve(index_of.size());
  for (const HtrSegment& segment : document.segments()) {
    const auto found = index_of.find(segment.GetParent());
    parents.push_back(segment.GetIsRoot() || found == index_of.end() ? -1 : found->second);
  }
  return parents;
}

}  // namespace binding
