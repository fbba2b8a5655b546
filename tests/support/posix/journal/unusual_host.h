#pragma once

#include "host/application/application.h"
#include "host/scene/sphere_object.h"
#include "tests/support/forwarding_interface.h"

namespace test {

// A host in which nothing is as a plug-in sets it: whatever is not set stays otherwise, and shows.
// Its nodes and spheres are born so, too.
class UnusualHost final : public ForwardingInterface {
 public:
  static constexpr TimeValue kTime = 37;
  static constexpr int kTicksPerFrame = 4;
  static constexpr Interval kRange{-8, 4003};

  // `own` is the interface of `application`, or one before it. Both outlive this object.
  UnusualHost(host::Application& application, ::Interface& own) : ForwardingInterface(own) {
    host::AnimationState& animation = application.scene().Animation();
    animation.AnimateMode().Set(true);
    animation.SetKeyMode().Set(true);
    animation.SetTime(kTime);
    animation.SetFrameRate(kTicksPerSecond / kTicksPerFrame);
    animation.SetRange(kRange);
    application.StartPlayback();
  }

  ClassInstance* CreateInstance(SuperClassId super_class, ClassId class_id) override {
    ClassInstance* const instance = ForwardingInterface::CreateInstance(super_class, class_id);
    auto* const sphere = dynamic_cast<host::SphereObject*>(instance);
    if (sphere != nullptr) static_cast<void>(sphere->SetParameters({7, 7, 7, 7, 7, 7, 7}));
    return instance;
  }

  INode* CreateObjectNode(Object* object) override {
    INode* const node = ForwardingInterface::CreateObjectNode(object);
    if (node == nullptr) return nullptr;
    node->Move(0, Matrix3(), Point3(7, 8, 9), false, false, kNoPivotMode, true);
    node->SetWireColor(PackWireColor(1, 2, 3));
    return node;
  }
};

}  // namespace test
