#pragma once

#include "host/animation/controller.h"
#include "host/animation/suspendable_mode.h"
#include "host/base/instance_pool.h"
#include "host/base/misuse_log.h"

namespace host {

// What controllers need around them, and a listener that counts the changes it is told of.
class ControllerFixture : public ChangeListener {
 public:
  virtual ~ControllerFixture() = default;

  void ControllerChanged() override { ++changes_; }

 protected:
  SuspendableMode animate_{false};
  ControllerFaults faults_;
  MisuseLog misuse_;
  InstancePool pool_{misuse_};
  ControllerEnvironment environment_{animate_, faults_, pool_};
  int changes_ = 0;
};

}  // namespace host
