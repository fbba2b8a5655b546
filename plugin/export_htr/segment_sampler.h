#pragma once

#include <cstdint>

#include "formats/htr/document.h"
#include "plugin/export_htr/bone_pose.h"
#include "plugin/export_htr/options.h"
#include "plugin/services/message_sink.h"
#include "sdk/core/interface.h"

// One bone becomes one segment: its base position, and its motion relative to that. The hierarchy
// is somebody else's business.
namespace orvane {

class SegmentSampler {
 public:
  // All of them must outlive this object. `parent` is the segment of the bone's parent, or null for
  // the root of the export. Of `document` the start frame and the scale flag are set.
  SegmentSampler(Interface& interface, const ExportHTROptions& options, MessageSink& messages,
                 HtrDocument& document, INode& node, const HtrSegment* parent);

  // The segment, in system units. Warns of an object that does not stand where its node does.
  HtrSegment Sample();

 private:
  [[nodiscard]] bool ReadSavedBase(HtrSegment& segment);
  void ReadCurrentBase(HtrSegment& segment);
  void SampleFrames(HtrSegment& segment);
  void AddFrame(HtrSegment& segment, const RotationMatrix3& base_inverse, std::int64_t frame);
  double ParentFrameScale(std::int64_t frame) const;
  double BoneObjectLength() const;

  Interface& interface_;
  const ExportHTROptions& options_;
  MessageSink& messages_;
  HtrDocument& document_;
  INode& node_;
  const HtrSegment* parent_;
  BonePoseReader poses_;
};

}  // namespace orvane
