#pragma once

#include "host/animation/keys.h"
#include "host/animation/rotation_controller.h"
#include "host/base/quaternion.h"

// Rotations as three angles; tcb_controller.h has the smooth ones. The transform controller that it
// is installed in owns it, and until then the scene's pool does.

namespace host {

// A rotation as three angle tracks (those of QuatToEuler), interpolated linearly, each the shorter
// way round. Of the angle triples that give the rotation of a key, the key takes the one nearest to
// the key before it, or else after it.
class SKELDER_API EulerController final : public RotationController {
 public:
  explicit EulerController(const ControllerEnvironment& environment);

  std::size_t KeyCount() const override { return keys_.Size(); }
  TimeValue KeyTick(std::size_t key) const override { return keys_[key].tick; }
  Quat KeyValue(std::size_t key) const override { return keys_[key].value.rotation; }
  const char* KindName() const override { return "euler"; }
  Quat ValueAt(TimeValue time) const override;
  Quat Constant() const override { return constant_; }
  void SetConstant(const Quat& value) override;
  void SetKey(TimeValue time, const Quat& value) override;
  void DeleteAllKeys() override;
  void DeleteKeyAt(TimeValue time) override;

  // The point on the tracks that stands for key number `key`, in radians. It depends on the keys
  // that were there when the key was made.
  const Vector& KeyAngles(std::size_t key) const { return keys_[key].value.angles; }

  // Makes or replaces the key at `time` with both.
  void SetKey(TimeValue time, const Quat& value, const Vector& angles);

 protected:
  // Shifts the three tracks.
  void ShiftKeys(TimeValue time, const Quat& target) override;

 private:
  // What was set, and the point on the tracks that stands for it.
  struct Rotation {
    Quat rotation;
    Vector angles;
  };

  // The value at `time` when there are keys.
  Rotation OnTracks(TimeValue time) const;
  Vector AnglesForKey(TimeValue time, const Quat& value) const;

  Quat constant_;
  Keys<Rotation> keys_;
};

}  // namespace host
