#include "plugin/export_htr/segment_sampler.h"

#include <array>
#include <cmath>
#include <string>

#include "plugin/skeleton/bone.h"
#include "sdk/core/animation.h"
#include "sdk/core/object.h"
#include "sdk/paramblk2/parameter_block.h"

namespace orvane {
namespace {

// The frames of an export, both ends included; none when the last comes before the first.
struct SampledFrames {
  std::int64_t first = 0;
  std::int64_t last = 0;
};

SampledFrames FramesToSample(Interface& interface, const ExportHTROptions& options) {
  if (options.range) return {options.startFrame, options.endFrame};
  const Interval range = interface.GetAnimRange();
  const int ticks_per_frame = GetTicksPerFrame();
  return {range.Start() / ticks_per_frame, range.End() / ticks_per_frame};
}

// Reads three numbers kept on `node`, up to the first one that is missing.
bool ReadProperties(INode& node, const std::array<const char*, 3>& keys, Vector3& values) {
  for (unsigned int i = 0; i < 3; ++i) {
    float value = 0.0F;
    if (!node.GetUserPropertyFloat(keys[i], value)) return false;
    values[i] = static_cast<double>(value);
  }
  return true;
}

// Frame scales are divided by it when they are written.
void SetReferenceLength(HtrSegment& segment, double length) {
  const bool divides = std::isfinite(length) && length != 0.0;
  segment.SetScaleReferenceLength(divides ? length : 1.0);
}

Vector3 Scaled(const Vector3& vector, double factor) {
  return Vector3(vector.x() * factor, vector.y() * factor, vector.z() * factor);
}

Vector3 Difference(const Vector3& left, const Vector3& right) {
  return Vector3(left.x() - right.x(), left.y() - right.y(), left.z() - right.z());
}

}  // namespace

SegmentSampler::SegmentSampler(Interface& interface, const ExportHTROptions& options,
                               MessageSink& messages, HtrDocument& document, INode& node,
                               const HtrSegment* parent)
    : interface_(interface),
      options_(options),
      messages_(messages),
      document_(document),
      node_(node),
      parent_(parent),
      poses_(node, parent == nullptr, options.parentTransforms) {}

HtrSegment SegmentSampler::Sample() {
  HtrSegment segment(node_.GetName());
  segment.SetIsRoot(parent_ == nullptr);
  if (!options_.savedPose || !ReadSavedBase(segment)) ReadCurrentBase(segment);
  document_.SetNormalizeBoneScale(true);
  if (options_.animate) SampleFrames(segment);
  return segment;
}

// The base position that the bone had in its file. Returns false when a part of it is missing.
bool SegmentSampler::ReadSavedBase(HtrSegment& segment) {
  Vector3 translation;
  Vector3 rotation;
  float length = 0.0F;
  if (!ReadProperties(node_, {kBaseTranslationX, kBaseTranslationY, kBaseTranslationZ},
                      translation) ||
      !ReadProperties(node_, {kBaseRotationX, kBaseRotationY, kBaseRotationZ}, rotation) ||
      !node_.GetUserPropertyFloat(kBaseLength, length)) {
    return false;
  }
  segment.SetBaseTranslation(translation.x(), translation.y(), translation.z());
  segment.SetBaseRotation(rotation.x(), rotation.y(), rotation.z());
  segment.SetBoneLength(static_cast<double>(length));
  SetReferenceLength(segment, static_cast<double>(length) / BoneObjectLength());
  return true;
}

// How the bone stands now.
void SegmentSampler::ReadCurrentBase(HtrSegment& segment) {
  const BoneTransforms transforms = poses_.Read(interface_.GetTime());
  if (poses_.HasObjectOffset(transforms)) {
    const std::string warning =
        std::string("Bone: ") + node_.GetName() +
        " contains an object offset transformation, the resulting skeleton may not be correct.";
    messages_.Report(warning.c_str(), "ExportHTR Error");
  }
  const BonePose pose = poses_.Pose(transforms);
  const double parent_scale = ParentScale(transforms);
  // Intended: that of a root, too, whose translation in the world has the scale of its parents
  // already. The frames, which are told relative to the base, make up for it.
  const Vector3 translation = Scaled(pose.translation, parent_scale);
  const EulerRotation rotation(pose.rotation);
  segment.SetBaseTranslation(translation.x(), translation.y(), translation.z());
  segment.SetBaseRotation(rotation[0], rotation[1], rotation[2]);
  segment.SetBoneLength(pose.scale * parent_scale * BoneObjectLength());
  SetReferenceLength(segment, pose.scale * parent_scale);
}

void SegmentSampler::SampleFrames(HtrSegment& segment) {
  const SampledFrames frames = FramesToSample(interface_, options_);
  document_.SetStartFrame(static_cast<std::int32_t>(frames.first + options_.frameOffset));
  if (frames.last < frames.first) return;
  segment.ReserveFrames(static_cast<std::size_t>(frames.last - frames.first + 1));
  const RotationMatrix3 base_inverse = RotationMatrix3(segment.GetBaseRotation()).Transposed();
  for (std::int64_t frame = frames.first; frame <= frames.last; ++frame) {
    AddFrame(segment, base_inverse, frame);
  }
}

void SegmentSampler::AddFrame(HtrSegment& segment, const RotationMatrix3& base_inverse,
                              std::int64_t frame) {
  // Frames come from ticks, so their ticks fit.
  const auto time = static_cast<TimeValue>(frame * GetTicksPerFrame());
  const BonePose pose = poses_.Pose(poses_.Read(time));
  const double parent_scale = ParentFrameScale(frame);
  const Vector3 position = Scaled(pose.translation, parent_scale);
  segment.AddFrame(Difference(position, segment.GetBaseTranslation()),
                   EulerRotation(base_inverse * pose.rotation), pose.scale * parent_scale);
}

// The scale that the parent's segment has in the same frame; 1 for a root.
// Intended: with a frame offset another frame of the parent's is looked at, or none, because the
// document's start frame has the offset in it. Skeletons that are not scaled do not feel it.
double SegmentSampler::ParentFrameScale(std::int64_t frame) const {
  if (parent_ == nullptr) return 1.0;
  const std::int64_t index = frame - document_.GetStartFrame();
  return index < 0 ? 1.0 : parent_->GetFrameScale(static_cast<std::size_t>(index));
}

double SegmentSampler::BoneObjectLength() const {
  Object* object = node_.GetObjectReference();
  ParameterBlock* parameters = object == nullptr ? nullptr : object->GetFirstParameterBlock();
  return parameters == nullptr ? 0.0
                               : static_cast<double>(parameters->GetFloat(kBoneLengthParameter, 0));
}

}  // namespace orvane
