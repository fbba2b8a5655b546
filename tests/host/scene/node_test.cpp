#include "host/scene/node.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/animation/class_ids.h"
#include "host/animation/tcb_controller.h"
#include "tests/host/scene/scene_fixture.h"
#include "tests/support/host_geometry.h"

namespace host {
namespace {

class NodeTest : public SceneFixture {};

TEST_F(NodeTest, HasTheNameItIsGiven) {
  Node* node = NewBone("Hips");
  EXPECT_STREQ(node->GetName(), "Hips");
  node->SetName("Hips");
  EXPECT_EQ(node->Name(), "Hips");
  node->SetName(nullptr);
  EXPECT_STREQ(node->GetName(), "");
}

TEST_F(NodeTest, ShowsItsObject) {
  Object* object = NewObject(16, kBoneClass);
  Node* node = scene_.CreateNode(object);
  EXPECT_EQ(node->GetObjectReference(), object);
  EXPECT_EQ(node->EvaluateWorldObject(0), object);
  EXPECT_EQ(&node->ShownObject()->AsObject(), object);
}

TEST_F(NodeTest, KeepsItsWireColor) {
  Node* node = NewBone("Hips");
  node->SetWireColor(PackWireColor(204, 51, 25));
  EXPECT_EQ(node->WireColor(), 204U | 51U << 8U | 25U << 16U);
}

TEST_F(NodeTest, KeepsNumbersByTheirKey) {
  Node* node = NewBone("Hips");
  float value = 9.0F;
  EXPECT_FALSE(node->GetUserPropertyFloat("HTRBaseLength", value));
  EXPECT_EQ(value, 9.0F);
  node->SetUserPropertyFloat("HTRBaseLength", 1.25F);
  node->SetUserPropertyFloat("HTRBaseLength", 2.5F);
  node->SetUserPropertyFloat("HTRBaseTransX", -1.0F);
  EXPECT_TRUE(node->GetUserPropertyFloat("HTRBaseLength", value));
  EXPECT_EQ(value, 2.5F);
  EXPECT_THAT(node->Properties(), testing::ElementsAre(testing::Pair("HTRBaseLength", 2.5F),
                                                       testing::Pair("HTRBaseTransX", -1.0F)));
}

TEST_F(NodeTest, KeepsWhatMakesItABone) {
  Node* node = NewBone("Hips");
  EXPECT_EQ(node->BoneDisplay(), 1);
  EXPECT_FALSE(node->IsBone());
  node->SetBoneDisplay(0);
  node->SetBoneEnabled(1, -160);
  EXPECT_EQ(node->BoneDisplay(), 0);
  EXPECT_TRUE(node->IsBone());
  EXPECT_EQ(node->BoneSince(), -160);
  node->SetBoneEnabled(0, 0);
  EXPECT_FALSE(node->IsBone());
}

TEST_F(NodeTest, OffersItsControllers) {
  Node* node = NewBone("Hips");
  Control* transform = node->GetTMController();
  ASSERT_NE(transform, nullptr);
  EXPECT_EQ(transform->ClassID(), kTransformClass);
  EXPECT_EQ(transform->GetPositionController(), &node->Transform()->Position());
}

TEST_F(NodeTest, TakesTheClassOfTheCharacterComponent) {
  Node* node = NewBone("Hips");
  for (const ClassId& class_id : kCharacterTransformClasses) {
    node->Transform()->SetClassId(class_id);
    EXPECT_EQ(node->GetTMController()->ClassID(), class_id);
  }
}

TEST_F(NodeTest, ReplacesItsRotationControllerAsAnImportDoes) {
  Node* node = NewBone("Hips");
  Control* euler = node->GetTMController()->GetRotationController();
  const Quat turn = test::Turn(0, 0, 1, 30);
  euler->SetValue(0, &turn, 1, CTRL_ABSOLUTE);

  auto* tcb = dynamic_cast<Control*>(
      scene_.CreateInstance(kRotationControllerSuperClass, kTcbRotationClass));
  ASSERT_NE(tcb, nullptr);
  tcb->CopyFrom(euler);
  EXPECT_TRUE(node->GetTMController()->SetRotationController(tcb));
  EXPECT_EQ(node->GetTMController()->GetRotationController(), tcb);
  EXPECT_EQ(node->Transform()->Rotation().ValueAt(0), turn);
  EXPECT_EQ(scene_.LooseInstances(), 0U);
}

TEST_F(NodeTest, OfTheRootHasNeitherObjectNorController) {
  Node& root = scene_.Root();
  EXPECT_TRUE(root.IsRoot());
  EXPECT_EQ(root.GetObjectReference(), nullptr);
  EXPECT_EQ(root.GetTMController(), nullptr);
  EXPECT_EQ(root.GetParentNode(), nullptr);
  EXPECT_EQ(root.NodeTransform(0), Matrix3());
  EXPECT_EQ(root.ObjectTransform(0), Matrix3());
}

TEST_F(NodeTest, OfTheRootDoesNotMove) {
  scene_.Root().Move(0, Matrix3(), Point3(1, 2, 3), true, true, kNoPivotMode, true);
  scene_.Root().Scale(0, Matrix3(), Point3(2, 2, 2), true);
  EXPECT_EQ(scene_.Root().NodeTransform(0), Matrix3());
  EXPECT_THAT(scene_.Misuse().Messages(), testing::ElementsAre("Move called on the scene root",
                                                               "Scale called on the scene root"));
  expected_misuses_ = 2;
}

TEST_F(NodeTest, DoesNothingOnceItIsDeleted) {
  Node* node = NewBone("Hips");
  scene_.DeleteNode(node);
  INode& deleted = *node;
  float value = 1.0F;
  EXPECT_STREQ(deleted.GetName(), "");
  EXPECT_EQ(deleted.GetHandle(), 0U);
  EXPECT_EQ(deleted.NumberOfChildren(), 0);
  EXPECT_EQ(deleted.GetChildNode(0), nullptr);
  EXPECT_EQ(deleted.GetParentNode(), nullptr);
  EXPECT_EQ(deleted.GetTMController(), nullptr);
  EXPECT_EQ(deleted.GetObjectReference(), nullptr);
  EXPECT_EQ(deleted.EvaluateWorldObject(0), nullptr);
  EXPECT_EQ(deleted.NodeTransform(0), Matrix3());
  EXPECT_EQ(deleted.ObjectTransform(0), Matrix3());
  EXPECT_FALSE(deleted.GetUserPropertyFloat("HTRBaseLength", value));
  deleted.SetName("Chest");
  deleted.AttachChild(NewBone("Chest"), false);
  deleted.SetWireColor(0);
  deleted.Move(0, Matrix3(), Point3(1, 2, 3), true, true, kNoPivotMode, true);
  deleted.Scale(0, Matrix3(), Point3(2, 2, 2), true);
  deleted.SetUserPropertyFloat("HTRBaseLength", 1.0F);
  deleted.SetBoneDisplay(0);
  deleted.SetBoneEnabled(1, 0);
  expected_misuses_ = 19;
  EXPECT_EQ(scene_.Misuse().Messages().front(), "GetName called on deleted node \"Hips\"");
  EXPECT_EQ(scene_.Misuse().Messages().back(), "SetBoneEnabled called on deleted node \"Hips\"");
}

TEST(PackWireColorTest, HasRedInItsLowestByteAndBlueInItsThird) {
  EXPECT_EQ(PackWireColor(204, 51, 25), 0x1933CCU);
  EXPECT_EQ(PackWireColor(255, 0, 0), 0x0000FFU);
  EXPECT_EQ(PackWireColor(0, 255, 0), 0x00FF00U);
  EXPECT_EQ(PackWireColor(0, 0, 255), 0xFF0000U);
}

TEST(PackWireColorTest, TakesTheLowestEightBitsOfEachPart) {
  EXPECT_EQ(PackWireColor(0x1FF, 0x302, static_cast<unsigned>(-1)), 0xFF02FFU);
}

}  // namespace
}  // namespace host
