#pragma once

#include "host/animation/keys.h"
#include "host/animation/value_controller.h"
#include "sdk/geom/point3.h"

// Position and scale controllers: points, interpolated linearly from key to key.

namespace host {

class SKELDER_API VectorController : public ValueController<Point3> {
 public:
  std::size_t KeyCount() const final { return keys_.Size(); }
  TimeValue KeyTick(std::size_t key) const final { return keys_[key].tick; }
  Point3 KeyValue(std::size_t key) const final { return keys_[key].value; }
  Point3 ValueAt(TimeValue time) const final;
  Point3 Constant() const final { return constant_; }
  void SetConstant(const Point3& value) final;
  void SetKey(TimeValue time, const Point3& value) final;
  void DeleteAllKeys() final;
  void DeleteKeyAt(TimeValue time) final;

 protected:
  VectorController(const ControllerEnvironment& environment, SuperClassId super_class,
                   ClassId class_id, const Point3& constant)
      : ValueController(environment, super_class, class_id), constant_(constant) {}

  void ShiftKeys(TimeValue time, const Point3& target) final;

  // `value` changed in the same way as `from` when it becomes `to`.
  virtual Point3 Shifted(const Point3& value, const Point3& from, const Point3& to) const = 0;

 private:
  Point3 constant_;
  Keys<Point3> keys_;
};

// Relative changes and shifts add.
class SKELDER_API PositionController final : public VectorController {
 public:
  explicit PositionController(const ControllerEnvironment& environment);

 protected:
  Point3 Changed(const Point3& value, const Point3& change) const override;
  Point3 Shifted(const Point3& value, const Point3& from, const Point3& to) const override;
};

// Relative changes and shifts multiply; what is shifted away from 0 adds.
class SKELDER_API ScaleController final : public VectorController {
 public:
  explicit ScaleController(const ControllerEnvironment& environment);

 protected:
  Point3 Changed(const Point3& value, const Point3& change) const override;
  Point3 Shifted(const Point3& value, const Point3& from, const Point3& to) const override;
};

}  // namespace host
