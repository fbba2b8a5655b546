#pragma once

#include <memory>

#include "host/animation/rotation_controller.h"
#include "host/animation/vector_controller.h"
#include "platform/export.h"
#include "sdk/geom/matrix3.h"

// A node's transform within its parent. Where that is in the world only the node can tell
// (host/scene/node.h), which owns it.

namespace host {

// The controller of a node's local transform: scale * rotation * translation, each from a
// controller of its own, which it owns. A new one is the identity, with an Euler rotation.
// SetValue takes a Matrix3 and sets all three.
class SKELDER_API TransformController final : public Controller {
 public:
  explicit TransformController(const ControllerEnvironment& environment);

  PositionController& Position() { return position_; }
  const PositionController& Position() const { return position_; }
  RotationController& Rotation() const { return *rotation_; }
  ScaleController& Scale() { return scale_; }
  const ScaleController& Scale() const { return scale_; }

  Matrix3 ValueAt(TimeValue time) const;

  // Makes GetPositionController and GetRotationController return null, as transform controllers of
  // other makes do, or not.
  void HidePositionController(bool hidden) { position_hidden_ = hidden; }
  void HideRotationController(bool hidden) { rotation_hidden_ = hidden; }

  // Installs `rotation` and destroys the one it replaces.
  // REQUIRES: `rotation` is not null.
  void InstallRotation(std::unique_ptr<RotationController> rotation);

  // The keys belong to the three controllers; this one has none of its own.
  std::size_t KeyCount() const override { return 0; }
  TimeValue KeyTick(std::size_t /*key*/) const override { return 0; }

  void SetListener(ChangeListener* listener) override;
  Control* GetPositionController() override;
  Control* GetRotationController() override;
  bool SetRotationController(Control* rotation) override;
  void SetValue(TimeValue time, const void* value, int commit, SetMethod method) override;
  void DeleteKeyAt(TimeValue time) override;
  void CopyFrom(Control* source) override;

 private:
  PositionController position_;
  std::unique_ptr<RotationController> rotation_;
  ScaleController scale_;
  bool position_hidden_ = false;
  bool rotation_hidden_ = false;
};

}  // namespace host
