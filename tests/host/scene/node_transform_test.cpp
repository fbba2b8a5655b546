#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/base/compose.h"
#include "host/scene/node.h"
#include "tests/host/scene/scene_fixture.h"
#include "tests/support/host_geometry.h"

namespace host {
namespace {

using test::ExpectNear;
using test::Turn;

class NodeTransformTest : public SceneFixture {
 protected:
  static void Place(Node* node, const Point3& position, const Quat& rotation = Quat(),
                    const Point3& scale = Point3(1, 1, 1)) {
    node->Transform()->Position().SetConstant(position);
    node->Transform()->Rotation().SetConstant(rotation);
    node->Transform()->Scale().SetConstant(scale);
  }
  static Point3 WorldPosition(Node* node, TimeValue time = 0) {
    return node->NodeTransform(time).GetRow(3);
  }
};

TEST_F(NodeTransformTest, IsTheLocalTransformUnderTheRoot) {
  Node* node = NewBone("Hips");
  Place(node, Point3(1, 2, 3), Turn(0, 0, 1, 90), Point3(2, 2, 2));
  EXPECT_EQ(node->NodeTransform(0), node->LocalTransform(0));
}

TEST_F(NodeTransformTest, AppliesTheLocalTransformBeforeTheParents) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  Place(hips, Point3(10, 0, 0), Turn(0, 0, 1, 90));
  Place(chest, Point3(5, 0, 0), Turn(0, 0, 1, 90));
  ExpectNear(WorldPosition(chest), Point3(10, 5, 0), 1e-5);
  ExpectNear(chest->NodeTransform(0).GetRow(0), Point3(-1, 0, 0), 1e-6);
  EXPECT_EQ(chest->NodeTransform(0), chest->LocalTransform(0) * hips->NodeTransform(0));
}

TEST_F(NodeTransformTest, InheritsTheScaleOfTheParent) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  Place(hips, Point3(), Quat(), Point3(2, 3, 4));
  Place(chest, Point3(1, 1, 1));
  EXPECT_EQ(WorldPosition(chest), Point3(2, 3, 4));
}

TEST_F(NodeTransformTest, IsEvaluatedThroughTheParentsAtAnyTime) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  hips->Transform()->Position().SetKey(-100, Point3(0, 0, 0));
  hips->Transform()->Position().SetKey(100, Point3(20, 0, 0));
  chest->Transform()->Position().SetKey(0, Point3(0, 1, 0));
  chest->Transform()->Position().SetKey(100, Point3(0, 3, 0));
  EXPECT_EQ(WorldPosition(chest, -500), Point3(0, 1, 0));
  EXPECT_EQ(WorldPosition(chest, 0), Point3(10, 1, 0));
  EXPECT_EQ(WorldPosition(chest, 50), Point3(15, 2, 0));
  EXPECT_EQ(WorldPosition(hips, 50), Point3(15, 0, 0));
  EXPECT_EQ(WorldPosition(chest, 500), Point3(20, 3, 0));
}

TEST_F(NodeTransformTest, FollowsEveryChangeAboveIt) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  Node* head = NewBone("Head", chest);
  EXPECT_EQ(WorldPosition(head), Point3());

  Place(hips, Point3(1, 0, 0));
  EXPECT_EQ(WorldPosition(head), Point3(1, 0, 0));
  EXPECT_EQ(WorldPosition(chest), Point3(1, 0, 0));
  hips->Transform()->Position().SetKey(0, Point3(2, 0, 0));
  EXPECT_EQ(WorldPosition(head), Point3(2, 0, 0));
  hips->Transform()->Position().DeleteKeyAt(0);
  EXPECT_EQ(WorldPosition(head), Point3(1, 0, 0));

  // Known at another time above than below.
  EXPECT_EQ(WorldPosition(hips, 5), Point3(1, 0, 0));
  Place(chest, Point3(0, 1, 0));
  EXPECT_EQ(WorldPosition(head), Point3(1, 1, 0));
  chest->Transform()->Scale().SetConstant(Point3(2, 2, 2));
  Place(head, Point3(0, 0, 1));
  EXPECT_EQ(WorldPosition(head), Point3(1, 1, 2));
  scene_.Root().AttachChild(head, false);
  EXPECT_EQ(WorldPosition(head), Point3(0, 0, 1));
}

TEST_F(NodeTransformTest, OfTheObjectIsTheNodesBitForBit) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  Place(hips, Point3(0.1F, 0.7F, -0.3F), Turn(0.6, 0, 0.8, 33));
  Place(chest, Point3(1.1F, 1.7F, -1.3F), Turn(0.6, 0.8, 0, 71), Point3(1.1F, 0.9F, 1.3F));
  EXPECT_TRUE(chest->ObjectTransform(7) == chest->NodeTransform(7));
}

TEST_F(NodeTransformTest, OfAnOffsetObjectIsItsOwn) {
  Node* hips = NewBone("Hips");
  Place(hips, Point3(10, 0, 0), Turn(0, 0, 1, 90));
  Matrix3 offset;
  offset.SetRow(3, Point3(1, 0, 0));
  hips->SetObjectOffset(offset);
  EXPECT_TRUE(hips->ObjectTransform(0) != hips->NodeTransform(0));
  ExpectNear(hips->ObjectTransform(0).GetRow(3), Point3(10, 1, 0), 1e-5);
}

TEST_F(NodeTransformTest, MovesAlongItsOwnAxes) {
  Node* node = NewBone("Tip");
  Place(node, Point3(1, 1, 1), Turn(0, 0, 1, 90));
  node->Move(0, Matrix3(), Point3(5, 0, 0), true, false, kNoPivotMode, true);
  ExpectNear(WorldPosition(node), Point3(1, 6, 1), 1e-5);
}

TEST_F(NodeTransformTest, MovesAlongItsOwnAxesWhateverTheParentAndTheScale) {
  Node* hips = NewBone("Hips");
  Node* tip = NewBone("Tip", hips);
  Place(hips, Point3(3, 3, 3), Turn(1, 0, 0, 90));
  Place(tip, Point3(), Turn(0, 0, 1, 90), Point3(7, 7, 7));
  tip->Move(0, Matrix3(), Point3(5, 0, 0), true, false, kNoPivotMode, true);
  ExpectNear(tip->Transform()->Position().ValueAt(0), Point3(0, 5, 0), 1e-5);
}

TEST_F(NodeTransformTest, MovesAlongGivenAxesInTheWorld) {
  Node* hips = NewBone("Hips");
  Node* tip = NewBone("Tip", hips);
  Place(hips, Point3(3, 3, 3), Turn(1, 0, 0, 90), Point3(2, 2, 2));
  Place(tip, Point3(1, 2, 3), Turn(0, 0, 1, 30));
  const Point3 before = WorldPosition(tip);
  const Matrix3 axes = ComposeMatrix(Point3(9, 9, 9), Turn(0, 0, 1, 90), Point3(1, 1, 1));
  tip->Move(0, axes, Point3(5, 0, 0), false, true, kNoPivotMode, true);
  ExpectNear(WorldPosition(tip), Point3(before.x, before.y + 5, before.z), 1e-5);
}

TEST_F(NodeTransformTest, AMoveMakesAKeyWhileAnimateIsOn) {
  Node* node = NewBone("Hips");
  node->Move(160, Matrix3(), Point3(1, 0, 0), true, true, kNoPivotMode, true);
  EXPECT_EQ(node->Transform()->Position().KeyCount(), 0U);
  scene_.Animation().AnimateMode().Set(true);
  node->Move(160, Matrix3(), Point3(1, 0, 0), true, true, kNoPivotMode, true);
  ASSERT_EQ(node->Transform()->Position().KeyCount(), 1U);
  EXPECT_EQ(node->Transform()->Position().KeyValue(0), Point3(2, 0, 0));
}

TEST_F(NodeTransformTest, FollowsAChangeAboveItAtEveryTimeThatItWasAskedFor) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  for (const TimeValue time : {0, 1, 2}) EXPECT_EQ(WorldPosition(chest, time), Point3());
  Place(hips, Point3(1, 0, 0));
  for (const TimeValue time : {2, 1, 0}) EXPECT_EQ(WorldPosition(chest, time), Point3(1, 0, 0));
  NewBone("Group")->AttachChild(chest, false);
  for (const TimeValue time : {0, 1, 2}) EXPECT_EQ(WorldPosition(chest, time), Point3());
}

TEST_F(NodeTransformTest, NoObjectOfTheRootIsOffset) {
  scene_.Root().SetObjectOffset(Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 0, 0}));
  EXPECT_EQ(scene_.Root().ObjectTransform(0), Matrix3());
}

TEST_F(NodeTransformTest, ChildrenFollowAMove) {
  Node* hips = NewBone("Hips");
  Node* chest = NewBone("Chest", hips);
  hips->Move(0, Matrix3(), Point3(5, 0, 0), true, true, kNoPivotMode, true);
  EXPECT_EQ(WorldPosition(chest), Point3(5, 0, 0));
}

TEST_F(NodeTransformTest, DoesNotMoveWithoutItsChildren) {
  Node* hips = NewBone("Hips");
  NewBone("Chest", hips);
  hips->Move(0, Matrix3(), Point3(5, 0, 0), true, false, kNoPivotMode, true);
  EXPECT_EQ(WorldPosition(hips), Point3());
  EXPECT_THAT(scene_.Misuse().Messages(),
              testing::ElementsAre("Move without its children called on node \"Hips\""));
  expected_misuses_ = 1;
}

TEST_F(NodeTransformTest, ScalingMultiplies) {
  Node* node = NewBone("Marker");
  Place(node, Point3(1, 2, 3), Quat(), Point3(2, 2, 2));
  node->Scale(0, Matrix3(), Point3(0.25F, 0.5F, 3), true);
  EXPECT_EQ(node->Transform()->Scale().Constant(), Point3(0.5F, 1, 6));
  EXPECT_EQ(WorldPosition(node), Point3(1, 2, 3));
}

TEST_F(NodeTransformTest, DoesNotScaleAlongOtherAxesThanItsOwn) {
  Node* node = NewBone("Marker");
  Matrix3 axes;
  axes.SetRow(3, Point3(1, 0, 0));
  node->Scale(0, axes, Point3(2, 2, 2), true);
  node->Scale(0, Matrix3(), Point3(2, 2, 2), false);
  EXPECT_EQ(node->NodeTransform(0), Matrix3());
  EXPECT_THAT(scene_.Misuse().Messages(),
              testing::Each("Scale along other axes than its own called on node \"Marker\""));
  expected_misuses_ = 2;
}

}  // namespace
}  // namespace host
