#pragma once

#include <cstddef>

#include "host/animation/controller_faults.h"
#include "host/animation/suspendable_mode.h"
#include "host/base/instance_pool.h"
#include "platform/export.h"
#include "sdk/core/control.h"

// What all controllers of the host have in common: class, gate, keys by number, and the notice of a
// change to whoever holds the controller.

namespace host {

// Told that a controller has another value than before at some time.
class ChangeListener {
 public:
  virtual void ControllerChanged() = 0;

 protected:
  ~ChangeListener() = default;
};

// What the controllers of one scene share. It outlives them, and so does all of it.
struct ControllerEnvironment {
  const SuspendableMode& animate_mode;
  ControllerFaults& faults;
  InstancePool& pool;
};

class SKELDER_API Controller : public Control, public Instance {
 public:
  Controller(const ControllerEnvironment& environment, SuperClassId super_class, ClassId class_id)
      : environment_(environment), super_class_(super_class), class_id_(class_id) {}

  Controller(const Controller&) = delete;
  Controller& operator=(const Controller&) = delete;

  // The keys, in rising order of their ticks.
  virtual std::size_t KeyCount() const = 0;

  // REQUIRES: `key` is less than KeyCount().
  virtual TimeValue KeyTick(std::size_t key) const = 0;

  // Closes or opens the gate: CanAcceptValue reports 0 while it is closed.
  void CloseGate(bool closed) { closed_ = closed; }

  // Another class than the controller's own, as the character component's controllers have.
  void SetClassId(ClassId class_id) { class_id_ = class_id; }

  // Whom to tell of changes, or null. The listener outlives the controller or is taken away.
  virtual void SetListener(ChangeListener* listener) { listener_ = listener; }

  ClassId ClassID() final { return class_id_; }
  SuperClassId SuperClassID() final { return super_class_; }
  void Delete() final;
  Control* GetPositionController() override { return nullptr; }
  Control* GetRotationController() override { return nullptr; }
  bool SetRotationController(Control* rotation) override;
  int CanAcceptValue() final;

 protected:
  const ControllerEnvironment& Environment() const { return environment_; }
  ChangeListener* Listener() const { return listener_; }
  void NotifyChange() {
    if (listener_ != nullptr) listener_->ControllerChanged();
  }

 private:
  const ControllerEnvironment& environment_;
  SuperClassId super_class_;
  ClassId class_id_;
  bool closed_ = false;
  ChangeListener* listener_ = nullptr;
};

}  // namespace host
