#include "host/scene/scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/scene/scene_fixture.h"

namespace host {
namespace {

class SceneTest : public SceneFixture {};

TEST_F(SceneTest, IsEmptyAndInMillimetersAtFirst) {
  EXPECT_EQ(scene_.NodeCount(), 0U);
  EXPECT_EQ(scene_.Root().NumberOfChildren(), 0);
  EXPECT_TRUE(scene_.Selection().empty());
  EXPECT_EQ(scene_.MillimetersPerUnit(), 1.0);
  EXPECT_EQ(scene_.Animation().FrameRate(), 30);
  EXPECT_EQ(scene_.Animation().Range(), Interval(0, 16000));
  EXPECT_EQ(scene_.Animation().Time(), 0);
  EXPECT_EQ(scene_.RedrawCount(), 0U);
  EXPECT_EQ(scene_.LooseInstances(), 0U);
}

TEST_F(SceneTest, KeepsItsUnitAndCountsRedraws) {
  scene_.SetMillimetersPerUnit(25.4);
  EXPECT_EQ(scene_.MillimetersPerUnit(), 25.4);
  scene_.Redraw();
  scene_.Redraw();
  EXPECT_EQ(scene_.RedrawCount(), 2U);
}

TEST_F(SceneTest, CountsInstancesUntilTheyAreGivenOrDeleted) {
  Object* bone = NewObject(16, kBoneClass);
  Object* dummy = NewObject(80, kDummyClass);
  EXPECT_EQ(scene_.LooseInstances(), 2U);
  EXPECT_NE(scene_.CreateNode(bone), nullptr);
  EXPECT_EQ(scene_.LooseInstances(), 1U);
  dummy->Delete();
  EXPECT_EQ(scene_.LooseInstances(), 0U);
}

TEST_F(SceneTest, FreesInstancesThatTheirCallerForgot) {
  NewObject(16, kBoneClass);
  scene_.CreateInstance(kRotationControllerSuperClass, kTcbRotationClass);
  EXPECT_EQ(scene_.LooseInstances(), 2U);
}

TEST_F(SceneTest, AnObjectIsShownByOneNodeOnly) {
  Object* bone = NewObject(16, kBoneClass);
  EXPECT_NE(scene_.CreateNode(bone), nullptr);
  EXPECT_EQ(scene_.CreateNode(bone), nullptr);
  EXPECT_EQ(scene_.CreateNode(nullptr), nullptr);
  bone->Delete();
  EXPECT_EQ(scene_.NodeCount(), 1U);
  expected_misuses_ = 3;
}

TEST_F(SceneTest, NewNodesAreNumberedByKind) {
  EXPECT_EQ(scene_.CreateNode(NewObject(16, kBoneClass))->Name(), "Bone001");
  EXPECT_EQ(scene_.CreateNode(NewObject(16, kBoneClass))->Name(), "Bone002");
  EXPECT_EQ(scene_.CreateNode(NewObject(80, kDummyClass))->Name(), "Dummy001");
  EXPECT_EQ(scene_.CreateNode(NewObject(16, kSphereClass))->Name(), "Sphere001");
  EXPECT_EQ(scene_.CreateNode(NewObject(80, kPointHelperClass))->Name(), "Point001");
}

TEST_F(SceneTest, MakesNamesUniqueAmongItsNodes) {
  EXPECT_EQ(scene_.MakeNameUnique("TRCCloud"), "TRCCloud");
  Node* cloud = NewBone("TRCCloud");
  EXPECT_EQ(scene_.MakeNameUnique("TRCCloud"), "TRCCloud001");
  cloud->SetName("Markers");
  EXPECT_EQ(scene_.MakeNameUnique("TRCCloud"), "TRCCloud");
  scene_.DeleteNode(cloud);
  EXPECT_EQ(scene_.MakeNameUnique("Markers"), "Markers");
}

TEST_F(SceneTest, FindsNodesByHandle) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest");
  EXPECT_NE(hips->GetHandle(), 0U);
  EXPECT_NE(hips->GetHandle(), chest->GetHandle());
  EXPECT_EQ(scene_.FindByHandle(hips->GetHandle()), hips);
  EXPECT_EQ(scene_.FindByHandle(scene_.Root().GetHandle()), &scene_.Root());
  EXPECT_EQ(scene_.FindByHandle(0), nullptr);
  EXPECT_EQ(scene_.FindByHandle(99), nullptr);
}

TEST_F(SceneTest, HandlesOfDeletedNodesAreNotUsedAgain) {
  Node* hips = NewBone("Hips");
  const NodeHandle handle = hips->GetHandle();
  scene_.DeleteNode(hips);
  EXPECT_EQ(scene_.FindByHandle(handle), nullptr);
  EXPECT_NE(NewBone("Chest")->GetHandle(), handle);
}

TEST_F(SceneTest, FindsTheEarliestNodeOfAName) {
  Node* first = NewBone("Hips");
  Node* second = NewBone("Hips");
  EXPECT_EQ(scene_.FindByName("Hips"), first);
  scene_.DeleteNode(first);
  EXPECT_EQ(scene_.FindByName("Hips"), second);
  EXPECT_EQ(scene_.FindByName("hips"), nullptr);
  EXPECT_EQ(scene_.FindByName(""), nullptr);
}

TEST_F(SceneTest, SelectsInOrderAndOnce) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest");
  scene_.Select(*chest);
  scene_.Select(*hips);
  scene_.Select(*chest);
  EXPECT_THAT(scene_.Selection(), testing::ElementsAre(chest, hips));
  scene_.ClearSelection();
  EXPECT_TRUE(scene_.Selection().empty());
  scene_.Select(*chest);
  EXPECT_THAT(scene_.Selection(), testing::ElementsAre(chest));
}

TEST_F(SceneTest, ADeletedNodeLeavesTheSelection) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest");
  scene_.Select(*hips);
  scene_.Select(*chest);
  scene_.DeleteNode(hips);
  EXPECT_THAT(scene_.Selection(), testing::ElementsAre(chest));
}

TEST_F(SceneTest, SelectsOnlyItsLivingNodes) {
  Scene other;
  Node* stranger = other.CreateNode(dynamic_cast<Object*>(other.CreateInstance(16, kBoneClass)));
  Node* deleted = NewBone("Hips");
  scene_.DeleteNode(deleted);
  scene_.Select(*deleted);
  scene_.Select(*stranger);
  scene_.Select(scene_.Root());
  EXPECT_TRUE(scene_.Selection().empty());
  expected_misuses_ = 3;
}

TEST_F(SceneTest, DeletesOnlyItsLivingNodes) {
  Scene other;
  Node* stranger = other.CreateNode(dynamic_cast<Object*>(other.CreateInstance(16, kBoneClass)));
  Node* deleted = NewBone("Hips");
  scene_.DeleteNode(deleted);
  scene_.DeleteNode(deleted);
  scene_.DeleteNode(nullptr);
  scene_.DeleteNode(&scene_.Root());
  scene_.DeleteNode(stranger);
  EXPECT_FALSE(stranger->IsDeleted());
  EXPECT_EQ(scene_.NodeCount(), 0U);
  expected_misuses_ = 4;
}

}  // namespace
}  // namespace host
