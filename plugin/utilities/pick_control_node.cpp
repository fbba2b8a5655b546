#include "plugin/utilities/pick_control_node.h"

namespace orvane {

void PickControlNode::Prepare(Interface& interface) {
  interface_ = &interface;
  right_clicked_ = false;
  picked_ = nullptr;
}

bool PickControlNode::HitTest(HWND window, ViewportView* /*viewport*/, const ViewportPoint& point,
                              int /*flags*/) {
  return interface_ != nullptr && interface_->PickNode(window, point, this) != nullptr;
}

bool PickControlNode::Pick(ViewportView* viewport) {
  picked_ = viewport->GetClosestHit();
  active_ = false;
  return true;
}

bool PickControlNode::RightClick(ViewportView* /*viewport*/) {
  right_clicked_ = true;
  return true;
}

bool PickControlNode::Filter(INode* node) {
  Object* const object = node == nullptr ? nullptr : node->EvaluateWorldObject(0);
  if (object == nullptr) return false;
  const SuperClassId super_class = object->SuperClassID();
  return super_class == kGeometricObjectSuperClass || super_class == kShapeSuperClass ||
         super_class == kHelperSuperClass;
}

}  // namespace orvane
