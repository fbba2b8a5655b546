#include "host/animation/transform_controller.h"

#include <cassert>
#include <utility>

#include "host/animation/class_ids.h"
#include "host/animation/euler_controller.h"
#include "host/base/compose.h"

namespace host {

TransformController::TransformController(const ControllerEnvironment& environment)
    : Controller(environment, kTransformControllerSuperClass, kTransformClass),
      position_(environment),
      rotation_(std::make_unique<EulerController>(environment)),
      scale_(environment) {}

Matrix3 TransformController::ValueAt(TimeValue time) const {
  return ComposeMatrix(position_.ValueAt(time), rotation_->ValueAt(time), scale_.ValueAt(time));
}

void TransformController::InstallRotation(std::unique_ptr<RotationController> rotation) {
  assert(rotation != nullptr);
  rotation_ = std::move(rotation);
  rotation_->SetListener(Listener());
  NotifyChange();
}

void TransformController::SetListener(ChangeListener* listener) {
  Controller::SetListener(listener);
  position_.SetListener(listener);
  rotation_->SetListener(listener);
  scale_.SetListener(listener);
}

Control* TransformController::GetPositionController() {
  return position_hidden_ ? nullptr : &position_;
}

Control* TransformController::GetRotationController() {
  return rotation_hidden_ ? nullptr : rotation_.get();
}

bool TransformController::SetRotationController(Control* rotation) {
  if (Environment().faults.RotationInstallationIsRefused()) return false;
  auto taken = Environment().pool.Take<RotationController>(rotation);
  if (taken == nullptr) return false;
  InstallRotation(std::move(taken));
  return true;
}

void TransformController::SetValue(TimeValue time, const void* value, int commit,
                                   SetMethod method) {
  Point3 position;
  Quat rotation;
  Point3 scale;
  DecomposeMatrix(*static_cast<const Matrix3*>(value), position, rotation, scale);
  position_.SetValue(time, &position, commit, method);
  rotation_->SetValue(time, &rotation, commit, method);
  scale_.SetValue(time, &scale, commit, method);
}

void TransformController::DeleteKeyAt(TimeValue time) {
  position_.DeleteKeyAt(time);
  rotation_->DeleteKeyAt(time);
  scale_.DeleteKeyAt(time);
}

void TransformController::CopyFrom(Control* source) {
  auto* transform = dynamic_cast<TransformController*>(source);
  if (transform == nullptr) return;
  position_.CopyFrom(&transform->position_);
  rotation_->CopyFrom(transform->rotation_.get());
  scale_.CopyFrom(&transform->scale_);
}

}  // namespace host
