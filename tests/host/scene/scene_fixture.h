#pragma once

#include <gtest/gtest.h>

#include "host/scene/scene.h"

namespace host {

// A new scene in which every test makes its nodes; a test that means to misuse it says so.
class SceneFixture : public testing::Test {
 protected:
  ~SceneFixture() override { EXPECT_EQ(scene_.Misuse().Count(), expected_misuses_); }

  Object* NewObject(SuperClassId super_class, ClassId class_id) {
    return dynamic_cast<Object*>(scene_.CreateInstance(super_class, class_id));
  }

  // A bone node called `name` under `parent`, or under the root.
  Node* NewBone(const char* name, Node* parent = nullptr) {
    Node* node = scene_.CreateNode(NewObject(kGeometricObjectSuperClass, kBoneClass));
    node->SetName(name);
    if (parent != nullptr) parent->AttachChild(node, false);
    return node;
  }

  Scene scene_;
  std::size_t expected_misuses_ = 0;
};

}  // namespace host
