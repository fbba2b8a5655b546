#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/scene/node.h"
#include "tests/host/scene/scene_fixture.h"
#include "tests/support/host_geometry.h"

namespace host {
namespace {

using test::ExpectNear;
using test::Turn;

class NodeTreeTest : public SceneFixture {
 protected:
  static std::vector<std::string> ChildNames(INode& node) {
    std::vector<std::string> names(static_cast<std::size_t>(node.NumberOfChildren()));
    for (int i = 0; i < node.NumberOfChildren(); ++i) {
      names[static_cast<std::size_t>(i)] = node.GetChildNode(i)->GetName();
    }
    return names;
  }

  // The world transforms of `node` at ticks 0, 100, 200 and so on.
  static std::vector<Matrix3> WorldsOf(Node* node, std::size_t count) {
    std::vector<Matrix3> worlds(count);
    for (std::size_t i = 0; i < count; ++i) {
      worlds[i] = node->NodeTransform(static_cast<TimeValue>(100 * i));
    }
    return worlds;
  }

  // Hips, turned, moved and scaled evenly, with a chest, turned and moved.
  void MakeHipsAndChest() {
    hips_ = NewBone("Hips");
    chest_ = NewBone("Chest", hips_);
    hips_->Transform()->Position().SetConstant(Point3(10, 20, 30));
    hips_->Transform()->Rotation().SetConstant(Turn(0, 0, 1, 40));
    hips_->Transform()->Scale().SetConstant(Point3(2, 2, 2));
    chest_->Transform()->Position().SetConstant(Point3(5, 0, 1));
    chest_->Transform()->Rotation().SetConstant(Turn(0.6, 0, 0.8, 70));
  }

  Node* hips_ = nullptr;
  Node* chest_ = nullptr;
};

TEST_F(NodeTreeTest, ANewNodeIsTheLastChildOfTheRoot) {
  Node* hips = NewBone("Hips");
  NewBone("Chest");
  EXPECT_THAT(ChildNames(scene_.Root()), testing::ElementsAre("Hips", "Chest"));
  EXPECT_EQ(hips->GetParentNode(), &scene_.Root());
}

TEST_F(NodeTreeTest, ChildrenAreFoundByTheirNumber) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  EXPECT_EQ(hips->GetChildNode(0), chest);
  EXPECT_EQ(hips->GetChildNode(1), nullptr);
  EXPECT_EQ(hips->GetChildNode(-1), nullptr);
  EXPECT_EQ(chest->GetChildNode(0), nullptr);
}

TEST_F(NodeTreeTest, AttachingMakesTheLastChild) {
  Node* hips = NewBone("Hips");
  NewBone("Left", hips);
  Node* chest = NewBone("Chest", hips);
  NewBone("Right", hips);
  hips->AttachChild(chest, false);
  EXPECT_THAT(ChildNames(*hips), testing::ElementsAre("Left", "Right", "Chest"));
  EXPECT_EQ(chest->GetParentNode(), hips);
  EXPECT_THAT(ChildNames(scene_.Root()), testing::ElementsAre("Hips"));
}

TEST_F(NodeTreeTest, ChildrenKeepTheirOrderWhileOthersLeave) {
  Node* hips = NewBone("Hips");
  std::vector<Node*> children(10);
  for (std::size_t i = 0; i < 10; ++i) children[i] = NewBone(std::to_string(i).c_str(), hips);
  scene_.Root().AttachChild(children[3], false);
  scene_.Root().AttachChild(children[0], false);
  scene_.Root().AttachChild(children[9], false);
  EXPECT_EQ(hips->NumberOfChildren(), 7);
  hips->AttachChild(children[3], false);
  EXPECT_EQ(hips->NumberOfChildren(), 8);
  EXPECT_THAT(ChildNames(*hips), testing::ElementsAre("1", "2", "4", "5", "6", "7", "8", "3"));
  scene_.DeleteNode(children[5]);
  scene_.DeleteNode(children[3]);
  EXPECT_THAT(ChildNames(*hips), testing::ElementsAre("1", "2", "4", "6", "7", "8"));
}

TEST_F(NodeTreeTest, AttachingLeavesLocalValuesAlone) {
  MakeHipsAndChest();
  Node* head = NewBone("Head");
  head->Transform()->Position().SetConstant(Point3(1, 2, 3));
  const Matrix3 local = head->LocalTransform(0);
  chest_->AttachChild(head, false);
  EXPECT_EQ(head->LocalTransform(0), local);
  EXPECT_EQ(head->NodeTransform(0), local * chest_->NodeTransform(0));
}

TEST_F(NodeTreeTest, AttachingMayKeepTheWorldTransform) {
  MakeHipsAndChest();
  const Matrix3 world = chest_->NodeTransform(0);
  scene_.Root().AttachChild(chest_, true);
  ExpectNear(chest_->NodeTransform(0), world, 1e-5);
  hips_->AttachChild(chest_, true);
  ExpectNear(chest_->NodeTransform(0), world, 1e-5);
  EXPECT_EQ(chest_->GetParentNode(), hips_);
}

TEST_F(NodeTreeTest, KeepsTheWorldTransformAtTheCurrentTime) {
  Node* hips = NewBone("Hips");
  hips->Transform()->Position().SetKey(0, Point3(0, 0, 0));
  hips->Transform()->Position().SetKey(100, Point3(10, 0, 0));
  Node* chest = NewBone("Chest");
  scene_.Animation().SetTime(100);
  scene_.Animation().AnimateMode().Set(true);
  hips->AttachChild(chest, true);
  EXPECT_EQ(chest->NodeTransform(100).GetRow(3), Point3());
  EXPECT_EQ(chest->NodeTransform(0).GetRow(3), Point3(-10, 0, 0));
  EXPECT_EQ(chest->Transform()->Position().KeyCount(), 0U);
}

TEST_F(NodeTreeTest, KeepsTheWorldTransformAtEveryKey) {
  MakeHipsAndChest();
  hips_->Transform()->Rotation().SetKey(0, Turn(0, 0, 1, 0));
  hips_->Transform()->Rotation().SetKey(320, Turn(0, 0, 1, 90));
  for (int i = 0; i < 4; ++i) {
    chest_->Transform()->Position().SetKey(100 * i, Point3(static_cast<float>(i), 1, 2));
    chest_->Transform()->Rotation().SetKey(100 * i, Turn(1, 0, 0, 20.0 * i));
  }
  const std::vector<Matrix3> worlds = WorldsOf(chest_, 4);
  scene_.Root().AttachChild(chest_, true);
  ASSERT_EQ(chest_->Transform()->Position().KeyCount(), 4U);
  for (std::size_t i = 0; i < 4; ++i) ExpectNear(WorldsOf(chest_, 4)[i], worlds[i], 1e-5);
}

TEST_F(NodeTreeTest, DeletingHandsChildrenToTheParentInPlace) {
  MakeHipsAndChest();
  Node* head = NewBone("Head", chest_);
  Node* arm = NewBone("Arm", chest_);
  NewBone("Leg", hips_);
  head->Transform()->Position().SetConstant(Point3(3, 4, 5));
  arm->Transform()->Rotation().SetConstant(Turn(0, 1, 0, 25));
  const Matrix3 head_world = head->NodeTransform(0);
  const Matrix3 arm_world = arm->NodeTransform(0);

  scene_.DeleteNode(chest_);
  EXPECT_THAT(ChildNames(*hips_), testing::ElementsAre("Leg", "Head", "Arm"));
  EXPECT_EQ(head->GetParentNode(), hips_);
  ExpectNear(head->NodeTransform(0), head_world, 1e-5);
  ExpectNear(arm->NodeTransform(0), arm_world, 1e-5);

  scene_.DeleteNode(hips_);
  EXPECT_EQ(head->GetParentNode(), &scene_.Root());
  ExpectNear(head->NodeTransform(0), head_world, 1e-5);
  EXPECT_EQ(scene_.NodeCount(), 3U);
}

TEST_F(NodeTreeTest, DeletingKeepsKeyedChildrenInPlaceAtEveryKey) {
  MakeHipsAndChest();
  hips_->Transform()->Position().SetKey(0, Point3(0, 0, 0));
  hips_->Transform()->Position().SetKey(200, Point3(10, 0, 0));
  for (int i = 0; i < 3; ++i) chest_->Transform()->Position().SetKey(100 * i, Point3(1, 2, 3));
  const std::vector<Matrix3> worlds = WorldsOf(chest_, 3);
  scene_.DeleteNode(hips_);
  for (std::size_t i = 0; i < 3; ++i) ExpectNear(WorldsOf(chest_, 3)[i], worlds[i], 1e-5);
}

TEST_F(NodeTreeTest, NoNodeGetsBelowItself) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  Node* head = NewBone("Head", chest);
  hips->AttachChild(hips, false);
  head->AttachChild(hips, false);
  head->AttachChild(chest, true);
  EXPECT_EQ(hips->GetParentNode(), &scene_.Root());
  EXPECT_EQ(chest->GetParentNode(), hips);
  EXPECT_THAT(ChildNames(*head), testing::IsEmpty());
  EXPECT_EQ(scene_.Misuse().Messages().front(),
            "A node that cannot be its child was attached to node \"Hips\"");
  expected_misuses_ = 3;
}

TEST_F(NodeTreeTest, AttachesOnlyLivingNodesOfTheScene) {
  Scene other;
  Node* stranger = other.CreateNode(dynamic_cast<Object*>(other.CreateInstance(16, kBoneClass)));
  Node* hips = NewBone("Hips");
  Node* deleted = NewBone("Chest");
  scene_.DeleteNode(deleted);
  hips->AttachChild(nullptr, false);
  hips->AttachChild(&scene_.Root(), false);
  hips->AttachChild(deleted, false);
  hips->AttachChild(stranger, false);
  EXPECT_EQ(hips->NumberOfChildren(), 0);
  EXPECT_EQ(stranger->GetParentNode(), &other.Root());
  expected_misuses_ = 4;
}

}  // namespace
}  // namespace host
