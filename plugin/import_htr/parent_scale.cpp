#include "plugin/import_htr/parent_scale.h"

namespace orvane {

double ParentScale::Ask() {
  INode* const parent = node_.GetParentNode();
  if (parent == nullptr) return 1.0;
  const Matrix3 transform = parent->NodeTransform(interface_.GetTime());
  if (transform_ && *transform_ == transform) return x_;
  Point3 position;
  Quat rotation;
  Point3 scale;
  DecomposeMatrix(transform, position, rotation, scale);
  transform_ = transform;
  x_ = scale.x == 0.0F ? 1.0 : static_cast<double>(scale.x);
  return x_;
}

}  // namespace orvane
