#pragma once

#include "host/animation/value_controller.h"
#include "sdk/geom/quat.h"

// What all rotation controllers have in common; how keys are kept and joined is left to
// euler_controller.h and tcb_controller.h. The transform controller that it is installed in owns
// it, and until then the scene's pool does.

namespace host {

// A rotation controller of any kind. The value at a key's tick is, bit for bit, the rotation that
// was set there. A relative change is applied after the rotation, in the space of the parent.
class SKELDER_API RotationController : public ValueController<Quat> {
 public:
  using ValueController::ValueController;

  // How the keys are joined: "euler" or "tcb".
  virtual const char* KindName() const = 0;

 protected:
  Quat Changed(const Quat& value, const Quat& change) const final;
};

}  // namespace host
