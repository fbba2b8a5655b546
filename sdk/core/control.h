#pragma once

#include "sdk/core/class_instance.h"
#include "sdk/core/types.h"

// How Control::SetValue takes a value.
enum class SetMethod { kRelative = 0, kAbsolute = 1 };
inline constexpr SetMethod CTRL_ABSOLUTE = SetMethod::kAbsolute;

// A controller: a value over time. A node's transform controller holds one controller each for
// position, rotation and scale. Controllers belong to the scene once installed; pointers to them
// stay valid until the controller is replaced or its node deleted.
class Control : public ClassInstance {
 public:
  // The sub-controllers of a transform controller; null for any other controller.
  virtual Control* GetPositionController() = 0;
  virtual Control* GetRotationController() = 0;

  // Installs `rotation` as this transform controller's rotation controller and destroys the one it
  // replaces. Returns false, and leaves the ownership of `rotation` with the caller, when the host
  // refuses.
  virtual bool SetRotationController(Control* rotation) = 0;

  // Whether SetValue would be accepted now: 0 when it would not.
  virtual int CanAcceptValue() = 0;

  // Sets the value at `time` (ticks): a Point3 for a position or scale controller, a Quat for a
  // rotation controller, in the space of the node's parent. With animate mode on it makes or
  // replaces the key at exactly `time` and touches no other; with it off it sets the value of a
  // controller without keys and shifts a controller with keys as a whole. `commit` is 1 for a final
  // value.
  virtual void SetValue(TimeValue time, const void* value, int commit, SetMethod method) = 0;

  // Deletes the key at exactly `time`, if there is one.
  virtual void DeleteKeyAt(TimeValue time) = 0;

  // Takes over the value and the keys of `source`, a controller of the same super class.
  virtual void CopyFrom(Control* source) = 0;

 protected:
  ~Control() = default;
};
