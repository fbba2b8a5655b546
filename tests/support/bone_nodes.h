#pragma once

#include <string>

#include "host/scene/bone_object.h"
#include "host/scene/scene.h"

// Nodes of skeletons, made by hand.
namespace test {

inline host::Node& AddNode(host::Scene& scene, SuperClassId super_class, ClassId class_id,
                           const std::string& name, host::Node* parent) {
  host::Node* node =
      scene.CreateNode(static_cast<Object*>(scene.CreateInstance(super_class, class_id)));
  node->SetName(name.c_str());
  if (parent != nullptr) parent->AttachChild(node, false);
  return *node;
}

// A bone under `parent`, or under the scene root without one.
inline host::Node& AddBone(host::Scene& scene, const std::string& name,
                           host::Node* parent = nullptr) {
  return AddNode(scene, kGeometricObjectSuperClass, kBoneClass, name, parent);
}

inline host::Node& AddDummy(host::Scene& scene, const std::string& name,
                            host::Node* parent = nullptr) {
  return AddNode(scene, kHelperSuperClass, kDummyClass, name, parent);
}

inline void SetBoneLength(host::Node& bone, float length) {
  bone.GetObjectReference()->GetFirstParameterBlock()->SetValue(kBoneLengthParameter, 0, length);
}

}  // namespace test
