#include "plugin/utilities/pick_control_node.h"

namespace orvane {
namespace {

bool IsPickable(SuperClassId super_class) {
  return super_class == kGeometricObjectSuperClass || super_class == kShapeSuperClass ||
         super_class == kHelperSuperClass;
}

}  // namespace

void PickControlNode::Prepare(Interface& interface) {
  interface_ = &interface;
  right_clicked_ = false;
  picked_ = nullptr;
}

bool PickControlNode::HitTest(HWND window, ViewportView* /*viewport*/, const ViewportPoint& point,
                              int /*flags*/) {
  try {
    return interface_ != nullptr && interface_->PickNode(window, point, this) != nullptr;
  } catch (...) {
    return false;  // as where there is nothing
  }
}

bool PickControlNode::Pick(ViewportView* viewport) {
  try {
    picked_ = viewport->GetClosestHit();
  } catch (...) {
    return false;  // the user may click again
  }
  active_ = false;
  return true;
}

bool PickControlNode::RightClick(ViewportView* /*viewport*/) {
  right_clicked_ = true;
  return true;
}

bool PickControlNode::Filter(INode* node) {
  try {
    Object* const object = node == nullptr ? nullptr : node->EvaluateWorldObject(0);
    return object != nullptr && IsPickable(object->SuperClassID());
  } catch (...) {
    return false;
  }
}

}  // namespace orvane
