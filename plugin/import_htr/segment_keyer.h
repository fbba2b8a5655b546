#pragma once

#include "formats/htr/segment.h"
#include "plugin/exchange/key_times.h"
#include "plugin/import_htr/options.h"
#include "plugin/import_htr/parent_scale.h"
#include "plugin/skeleton/axis_conversion.h"
#include "sdk/core/interface.h"

// The keys of one bone: clears the ticks of the motion, then keys the base position and the frames
// of one segment on one node, as the options ask for. The hierarchy is somebody else's business.
namespace orvane {

class SegmentKeyer {
 public:
  // All of them must outlive this object; `node` and `segment` belong together.
  SegmentKeyer(Interface& interface, const ImportHTROptions& options, const KeyTimes& times,
               INode& node, const HtrSegment& segment);

  // Does all of it. Returns false when a controller does not accept a value: the rest is not done,
  // and animation stays suspended.
  [[nodiscard]] bool Run();

 private:
  void InstallTcbController();
  [[nodiscard]] bool KeyBasePosition();
  [[nodiscard]] bool KeyFrames();
  [[nodiscard]] bool KeyTranslation(TimeValue time, const Vector3& translation);
  [[nodiscard]] bool KeyRotation(TimeValue time, const RotationMatrix3& rotation);

  Interface& interface_;
  const ImportHTROptions& options_;
  const KeyTimes& times_;
  INode& node_;
  const HtrSegment& segment_;
  AxisConversion axes_;
  ParentScale parent_scale_;
  Control* position_;
  Control* rotation_;
};

}  // namespace orvane
