#pragma once

#include <cassert>

#include "host/animation/controller.h"

// What setting a value does to a controller, whatever its values are. How they are kept and joined
// is left to vector_controller.h and rotation_controller.h.

namespace host {

// Where `time` lies between two ticks: 0 at `from`, 1 at `to`.
// REQUIRES: `from` is before `to`.
inline double FractionBetween(TimeValue from, TimeValue to, TimeValue time) {
  assert(from < to);
  const double start = from;
  return (time - start) / (to - start);
}

// A controller of one kind of value: how setting a value, copying and the animate mode play
// together. The kinds below it say how values are kept and interpolated. Before the first key and
// after the last one their values hold.
template <typename Value>
class ValueController : public Controller {
 public:
  using Controller::Controller;

  virtual Value ValueAt(TimeValue time) const = 0;

  // The value of the controller while it has no keys.
  virtual Value Constant() const = 0;
  virtual void SetConstant(const Value& value) = 0;

  // What key number `key` holds, exactly as it was set.
  // REQUIRES: `key` is less than KeyCount().
  virtual Value KeyValue(std::size_t key) const = 0;

  // Makes or replaces the key at `time`, whatever the animate mode.
  virtual void SetKey(TimeValue time, const Value& value) = 0;
  virtual void DeleteAllKeys() = 0;

  void SetValue(TimeValue time, const void* value, int /*commit*/, SetMethod method) final {
    Value target = *static_cast<const Value*>(value);
    if (method == SetMethod::kRelative) target = Changed(ValueAt(time), target);
    if (Environment().animate_mode.IsOn()) {
      SetKey(time, target);
    } else if (KeyCount() == 0) {
      SetConstant(target);
    } else {
      ShiftKeys(time, target);
    }
  }

  void CopyFrom(Control* source) final {
    auto* controller = dynamic_cast<ValueController*>(source);
    if (controller == nullptr || controller == this) return;
    if (controller->SuperClassID() != SuperClassID()) return;
    DeleteAllKeys();
    SetConstant(controller->Constant());
    for (std::size_t key = 0; key < controller->KeyCount(); ++key) {
      SetKey(controller->KeyTick(key), controller->KeyValue(key));
    }
  }

 protected:
  // `value` after the relative change `change`.
  virtual Value Changed(const Value& value, const Value& change) const = 0;

  // Changes all keys alike, so that the value at `time` becomes `target`.
  virtual void ShiftKeys(TimeValue time, const Value& target) = 0;
};

}  // namespace host
