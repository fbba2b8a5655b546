#include "plugin/skeleton/bone.h"

#include <gtest/gtest.h>

#include "host/scene/scene.h"

namespace orvane {
namespace {

INode& NodeOf(host::Scene& scene, SuperClassId super_class, ClassId class_id) {
  return *scene.CreateNode(static_cast<Object*>(scene.CreateInstance(super_class, class_id)));
}

TEST(IsBoneTest, TheClassOfTheObjectDecides) {
  host::Scene scene;
  EXPECT_TRUE(IsBone(NodeOf(scene, kGeometricObjectSuperClass, kBoneClass)));
  EXPECT_FALSE(IsBone(NodeOf(scene, kGeometricObjectSuperClass, kSphereClass)));
  EXPECT_FALSE(IsBone(NodeOf(scene, kHelperSuperClass, kDummyClass)));
}

TEST(IsBoneTest, ANodeWithoutAnObjectIsNone) {
  host::Scene scene;
  EXPECT_FALSE(IsBone(scene.Root()));
}

}  // namespace
}  // namespace orvane
