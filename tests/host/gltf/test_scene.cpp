#include "tests/host/gltf/test_scene.h"

#include <cmath>
#include <numbers>

#include "sdk/core/class_id.h"
#include "sdk/core/object.h"
#include "sdk/paramblk2/parameter_block.h"

namespace test {

namespace {

host::Node& AddNode(host::Scene& scene, host::Node* parent, const std::string& name,
                    Object* object) {
  host::Node* node = scene.CreateNode(object);
  node->SetName(name.c_str());
  if (parent != nullptr) parent->AttachChild(node, false);
  return *node;
}

Object* MakeObject(host::Scene& scene, SuperClassId super_class, ClassId class_id) {
  return static_cast<Object*>(scene.CreateInstance(super_class, class_id));
}

}  // namespace

host::Node& AddBone(host::Scene& scene, host::Node* parent, const std::string& name,
                    const BoneSize& size) {
  Object* bone = MakeObject(scene, kGeometricObjectSuperClass, kBoneClass);
  ParameterBlock* parameters = bone->GetFirstParameterBlock();
  parameters->SetValue(kBoneWidthParameter, 0, size.width);
  parameters->SetValue(kBoneHeightParameter, 0, size.height);
  parameters->SetValue(kBoneLengthParameter, 0, size.length);
  return AddNode(scene, parent, name, bone);
}

host::Node& AddDummy(host::Scene& scene, host::Node* parent, const std::string& name) {
  return AddNode(scene, parent, name, MakeObject(scene, kHelperSuperClass, kDummyClass));
}

host::Node& AddSphere(host::Scene& scene, host::Node* parent, const std::string& name,
                      float radius) {
  Object* sphere = MakeObject(scene, kGeometricObjectSuperClass, kSphereClass);
  sphere->GetParamBlock()->SetValue(kSphereRadiusParameter, 0, radius);
  return AddNode(scene, parent, name, sphere);
}

host::Node& AddPoint(host::Scene& scene, host::Node* parent, const std::string& name) {
  return AddNode(scene, parent, name, MakeObject(scene, kHelperSuperClass, kPointHelperClass));
}

void UseTcbRotation(host::Scene& scene, host::Node& node) {
  auto* rotation =
      static_cast<Control*>(scene.CreateInstance(kRotationControllerSuperClass, kTcbRotationClass));
  node.GetTMController()->SetRotationController(rotation);
}

Quat TurnAbout(int axis, double degrees) {
  const double half = degrees * std::numbers::pi / 360.0;
  Point3 direction;
  direction[axis] = static_cast<float>(std::sin(half));
  return {direction.x, direction.y, direction.z, static_cast<float>(-std::cos(half))};
}

}  // namespace test
