#include "plugin/import_htr/segment_keyer.h"

#include "plugin/exchange/node_controllers.h"
#include "plugin/exchange/object_nodes.h"
#include "sdk/core/animation.h"

namespace orvane {

SegmentKeyer::SegmentKeyer(Interface& interface, const ImportHTROptions& options,
                           const KeyTimes& times, INode& node, const HtrSegment& segment)
    : interface_(interface),
      options_(options),
      times_(times),
      node_(node),
      segment_(segment),
      axes_(segment.GetIsRoot()),
      parent_scale_(interface, node),
      position_(PositionController(node)),
      rotation_(RotationController(node)) {}

bool SegmentKeyer::Run() {
  ClearKeys(position_, rotation_, times_);
  if (options_.rotationController != 0) InstallTcbController();

  SuspendAnimate();
  AnimateOn();
  if (options_.keyBasePosition && !KeyBasePosition()) return false;
  if (options_.animate && !KeyFrames()) return false;
  // Intended: not on failure, which leaves animation suspended.
  ResumeAnimate();
  return true;
}

// Replaces the node's rotation controller, its keys kept.
// Intended: where the host cannot make the new one or refuses it, the old one is keyed.
void SegmentKeyer::InstallTcbController() {
  Control* transform = node_.GetTMController();
  if (transform == nullptr || rotation_ == nullptr) return;
  auto tcb = CreateOwned<Control>(interface_, kRotationControllerSuperClass, kTcbRotationClass);
  if (tcb == nullptr) return;
  tcb->CopyFrom(rotation_);
  if (transform->SetRotationController(tcb.get())) (void)tcb.release();
  tcb.reset();
  rotation_ = transform->GetRotationController();
}

bool SegmentKeyer::KeyBasePosition() {
  const std::optional<TimeValue> time =
      options_.animate ? times_.Tick(-1) : std::optional(interface_.GetTime());
  if (!time) return true;
  return KeyTranslation(*time, segment_.GetBaseTranslation()) &&
         KeyRotation(*time, RotationMatrix3(segment_.GetBaseRotation()));
}

// Intended: the file's frames are taken from its first one on, whatever frame the range starts at;
// that says only when they are keyed.
bool SegmentKeyer::KeyFrames() {
  const RotationMatrix3 base(segment_.GetBaseRotation());
  EulerRotation previous;
  for (std::int64_t frame = times_.BeginFrame(); frame < times_.EndFrame(); ++frame) {
    const TimeValue time = *times_.Tick(frame);
    const auto index = static_cast<std::size_t>(frame);
    if (!KeyTranslation(time, segment_.GetFramePosition(index))) return false;

    EulerRotation current;
    current.Set(segment_.GetFrameOrientation(index, base));
    current = ContinueEulerRotation(current, previous);
    if (!KeyRotation(time, RotationMatrix3(current))) return false;
    previous = current;
  }
  return true;
}

// Multiplies by the global scale, and undoes the scale of the parent.
// Intended: as that is at the current time, whatever the time of the key.
bool SegmentKeyer::KeyTranslation(TimeValue time, const Vector3& translation) {
  const double factor = options_.scaleFactor / parent_scale_.Ask();
  const Vector3 scaled(translation.x() * factor, translation.y() * factor,
                       translation.z() * factor);
  return SetPosition(position_, time, HostPoint(axes_.HostPosition(scaled)));
}

bool SegmentKeyer::KeyRotation(TimeValue time, const RotationMatrix3& rotation) {
  return SetRotation(rotation_, time, HostQuaternion(Quaternion(axes_.HostRotation(rotation))));
}

}  // namespace orvane
