#pragma once

#include "host/animation/keys.h"
#include "host/animation/rotation_controller.h"

// Rotations on a smooth path; euler_controller.h has those as angles. The transform controller that
// it is installed in owns it, and until then the scene's pool does.

namespace host {

// A smooth rotation through its keys: Kochanek-Bartels tangents with tension, continuity and bias
// 0, on quaternions. The tangent at a key is the mean of the rotations to its two neighbours, in
// proportion to the ticks between them; the first and the last key have the tangent of their only
// neighbour, so that two keys are joined by a plain spherical interpolation. Between neighbours the
// shorter way is taken.
class SKELDER_API TcbController final : public RotationController {
 public:
  explicit TcbController(const ControllerEnvironment& environment);

  std::size_t KeyCount() const override { return keys_.Size(); }
  TimeValue KeyTick(std::size_t key) const override { return keys_[key].tick; }
  Quat KeyValue(std::size_t key) const override { return keys_[key].value; }
  const char* KindName() const override { return "tcb"; }
  Quat ValueAt(TimeValue time) const override;
  Quat Constant() const override { return constant_; }
  void SetConstant(const Quat& value) override;
  void SetKey(TimeValue time, const Quat& value) override;
  void DeleteAllKeys() override;
  void DeleteKeyAt(TimeValue time) override;

 protected:
  // Turns all keys by one rotation in the space of the parent.
  void ShiftKeys(TimeValue time, const Quat& target) override;

 private:
  Quat Between(std::size_t from, TimeValue time) const;

  Quat constant_;
  Keys<Quat> keys_;
};

}  // namespace host
