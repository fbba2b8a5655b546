#include "plugin/import_htr/skeleton_creator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/application/application.h"
#include "tests/plugin/import_htr/skeleton_fixture.h"
#include "tests/support/forwarding_interface.h"

namespace orvane {
namespace {

using test::ChildNames;
using test::ExpectRows;
using test::Radians;
using testing::ElementsAre;
using testing::Pair;

class SkeletonCreatorTest : public test::SkeletonTest {
 protected:
  INode* Create(const HtrSegment& root) {
    return SkeletonCreator(interface(), options_).Create(root);
  }

  static Point3 Position(const host::Node& node) { return node.Transform()->Position().Constant(); }

  static float BoneParameter(const host::Node& node, int index) {
    return dynamic_cast<const host::BoneObject&>(*node.ShownObject()).Parameter(index);
  }
};

TEST_F(SkeletonCreatorTest, MakesOneBonePerSegmentInTheOrderOfTheFile) {
  HtrSegment& hips = Add("Hips");
  HtrSegment& spine = Add("Spine", &hips);
  Add("LeftLeg", &hips);
  Add("Head", &spine);
  Add("RightLeg", &hips);
  INode* root = Create(hips);
  ASSERT_EQ(root, Find("Hips"));
  EXPECT_EQ(scene().NodeCount(), 5U);
  EXPECT_EQ(ChildNames(scene().Root()), "Hips");
  EXPECT_EQ(ChildNames(Node("Hips")), "Spine LeftLeg RightLeg");
  EXPECT_EQ(ChildNames(Node("Spine")), "Head");
}

TEST_F(SkeletonCreatorTest, BasePositionsChangeTheirAxesAndPropertiesDoNot) {
  HtrSegment& hips = Add("Hips");
  HtrSegment& leg = Add("Leg", &hips);
  for (HtrSegment* segment : {&hips, &leg}) {
    segment->SetBaseTranslation(1, 2, 3);
    segment->SetBaseRotation(0.25, -0.5, 0.75);
    segment->SetBoneLength(12.5);
  }
  Create(hips);
  EXPECT_EQ(Position(Node("Hips")), Point3(1, -3, 2));
  EXPECT_EQ(Position(Node("Leg")), Point3(2, 3, 1));
  for (const char* name : {"Hips", "Leg"}) {
    EXPECT_THAT(Node(name).Properties(),
                ElementsAre(Pair("HTRBaseLength", 12.5F), Pair("HTRBaseRotX", 0.25F),
                            Pair("HTRBaseRotY", -0.5F), Pair("HTRBaseRotZ", 0.75F),
                            Pair("HTRBaseTransX", 1.0F), Pair("HTRBaseTransY", 2.0F),
                            Pair("HTRBaseTransZ", 3.0F)));
  }
}

TEST_F(SkeletonCreatorTest, PositionsDoNotFollowTheGlobalScale) {
  options_.scaleFactor = 10;
  HtrSegment& hips = Add("Hips");
  hips.SetBaseTranslation(1, 2, 3);
  Create(hips);
  EXPECT_EQ(Position(Node("Hips")), Point3(1, -3, 2));
}

TEST_F(SkeletonCreatorTest, ARootWithoutRotationStandsUprightAndABoneIsStraight) {
  HtrSegment& hips = Add("Hips");
  Add("Leg", &hips);
  Create(hips);
  // Ry(-90) Rx(180), whose columns are the host's rows.
  ExpectRows(Node("Hips").LocalTransform(0), {0, 0, 1}, {0, -1, 0}, {1, 0, 0});
  ExpectRows(Node("Leg").LocalTransform(0), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
}

TEST_F(SkeletonCreatorTest, BaseRotationsChangeTheirAxes) {
  HtrSegment& hips = Add("Hips");
  hips.SetBaseRotation(0, 0, Radians(90));
  HtrSegment& leg = Add("Leg", &hips);
  leg.SetBaseRotation(Radians(90), 0, 0);
  Create(hips);
  ExpectRows(Node("Hips").LocalTransform(0), {-1, 0, 0}, {0, -1, 0}, {0, 0, 1});
  // The file's X is the bone's Z.
  ExpectRows(Node("Leg").LocalTransform(0), {0, 1, 0}, {-1, 0, 0}, {0, 0, 1});
}

TEST_F(SkeletonCreatorTest, TheHostGetsTheQuaternionWithItsScalarNegated) {
  HtrSegment& hips = Add("Hips");
  HtrSegment& leg = Add("Leg", &hips);
  leg.SetBaseRotation(Radians(90), 0, 0);
  Create(hips);
  const Quat rotation = Node("Leg").Transform()->Rotation().Constant();
  EXPECT_NEAR(rotation.z, 0.70710678F, 1e-6F);
  EXPECT_NEAR(rotation.w, -0.70710678F, 1e-6F);
}

TEST_F(SkeletonCreatorTest, TheDocumentIsNotChanged) {
  HtrSegment& hips = Add("Hips");
  hips.SetBaseTranslation(1, 2, 3);
  hips.SetBaseRotation(0.25, -0.5, 0.75);
  Create(hips);
  EXPECT_EQ(hips.GetBaseTranslation().y(), 2);
  EXPECT_EQ(hips.GetBaseRotation()[0], 0.25);
  EXPECT_EQ(hips.GetBaseRotation()[1], -0.5);
  EXPECT_EQ(hips.GetBaseRotation()[2], 0.75);
}

TEST_F(SkeletonCreatorTest, BonesAreSizedByLengthSegmentSizeAndScale) {
  const struct {
    float size;
    double scale;
    float thickness;
    float length;
  } cases[] = {{1, 1, 2, 10}, {3, 1, 6, 10}, {1, 5, 10, 50}, {3, 5, 30, 50}, {-1, 1, -2, 10}};
  int number = 0;
  for (const auto& its : cases) {
    options_.size = its.size;
    options_.scaleFactor = its.scale;
    HtrSegment& bone = Add("Bone" + std::to_string(number++));
    bone.SetBoneLength(10);
    Create(bone);
    const host::Node& node = *Find(bone.GetName());
    EXPECT_EQ(BoneParameter(node, 0), its.thickness);
    EXPECT_EQ(BoneParameter(node, 1), its.thickness);
    EXPECT_EQ(BoneParameter(node, 3), its.length);
  }
}

TEST_F(SkeletonCreatorTest, BonesAreShownAsBonesInTheHostsColor) {
  scene().Animation().SetTime(640);
  Create(Add("Hips"));
  const host::Node& node = Node("Hips");
  EXPECT_EQ(node.ShownObject()->AsObject().ClassID(), kBoneClass);
  EXPECT_EQ(node.BoneDisplay(), 0);
  EXPECT_EQ(node.BoneSince(), 640);
  // 0.8, 0.7 and 0.5 of 255: 204, 178 and 127.
  EXPECT_EQ(node.WireColor(), 0x7FB2CCU);
}

TEST_F(SkeletonCreatorTest, CreationMakesNoKeys) {
  Create(Add("Hips"));
  EXPECT_EQ(Node("Hips").Transform()->Position().KeyCount(), 0U);
  EXPECT_EQ(Node("Hips").Transform()->Rotation().KeyCount(), 0U);
}

TEST_F(SkeletonCreatorTest, ALeafHasNoEffectorUnlessAskedFor) {
  HtrSegment& hips = Add("Hips");
  Add("Leg", &hips);
  Create(hips);
  EXPECT_EQ(ChildNames(Node("Leg")), "");
}

TEST_F(SkeletonCreatorTest, ALeafGetsOneEffectorAtTheFilesLength) {
  options_.endEffectors = true;
  options_.size = 2;
  options_.scaleFactor = 3;
  HtrSegment& hips = Add("Hips");
  HtrSegment& leg = Add("Leg", &hips);
  leg.SetBoneLength(10);
  Create(hips);
  EXPECT_EQ(ChildNames(Node("Hips")), "Leg");
  EXPECT_EQ(ChildNames(Node("Leg")), "Leg_Effector");
  const host::Node& effector = Node("Leg_Effector");
  for (const int parameter : {0, 1, 3}) EXPECT_EQ(BoneParameter(effector, parameter), 12.0F);
  // The global scale lengthens the drawn bone, not the offset.
  EXPECT_EQ(Position(effector), Point3(10, 0, 0));
  ExpectRows(effector.LocalTransform(0), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
  EXPECT_EQ(effector.WireColor(), 0x7FB2CCU);
  EXPECT_TRUE(effector.Properties().empty());
}

TEST_F(SkeletonCreatorTest, ARefusedPositionStopsAtThatBoneWhichStays) {
  HtrSegment& hips = Add("Hips");
  Add("Leg", &hips);
  scene().Faults().RefuseQuery(1);
  EXPECT_EQ(Create(hips), nullptr);
  EXPECT_EQ(scene().NodeCount(), 1U);
  ASSERT_NE(Find("Hips"), nullptr);
  EXPECT_TRUE(Node("Hips").Properties().Find("HTRBaseTransX"));
  EXPECT_FALSE(Node("Hips").Properties().Find("HTRBaseRotX"));
}

TEST_F(SkeletonCreatorTest, ARefusedRotationStopsAtThatBoneWhichStays) {
  scene().Faults().RefuseQuery(2);
  EXPECT_EQ(Create(Add("Hips")), nullptr);
  ASSERT_NE(Find("Hips"), nullptr);
  EXPECT_TRUE(Node("Hips").Properties().Find("HTRBaseRotZ"));
  EXPECT_FALSE(Node("Hips").Properties().Find("HTRBaseLength"));
}

TEST_F(SkeletonCreatorTest, AFailureDeletesTheAncestorsAndCreatesNothingMore) {
  HtrSegment& hips = Add("Hips");
  HtrSegment& spine = Add("Spine", &hips);
  Add("Neck", &spine);
  Add("LeftLeg", &hips);
  scene().Faults().RefuseQuery(5);  // the position of the third bone
  const std::size_t redraws = scene().RedrawCount();
  EXPECT_EQ(Create(hips), nullptr);
  EXPECT_EQ(ChildNames(scene().Root()), "Neck");
  EXPECT_EQ(scene().NodeCount(), 1U);
  EXPECT_EQ(scene().RedrawCount(), redraws + 2);
}

TEST_F(SkeletonCreatorTest, SiblingsThatWereFinishedStayWhenTheirParentGoes) {
  HtrSegment& hips = Add("Hips");
  Add("LeftLeg", &hips);
  Add("RightLeg", &hips);
  scene().Faults().RefuseQuery(5);
  EXPECT_EQ(Create(hips), nullptr);
  EXPECT_EQ(ChildNames(scene().Root()), "LeftLeg RightLeg");
}

TEST_F(SkeletonCreatorTest, WhatTheHostCannotCreateFailsTheSame) {
  options_.endEffectors = true;
  HtrSegment& hips = Add("Hips");
  Add("Leg", &hips);
  for (int n = 1; n <= 3; ++n) {
    test::RefusingInterface no_instance(interface());
    no_instance.RefuseInstance(n);
    EXPECT_EQ(SkeletonCreator(no_instance, options_).Create(hips), nullptr) << n;
    test::RefusingInterface no_node(interface());
    no_node.RefuseNode(n);
    EXPECT_EQ(SkeletonCreator(no_node, options_).Create(hips), nullptr) << n;
    EXPECT_EQ(scene().LooseInstances(), 0U) << n;
  }
}

TEST_F(SkeletonCreatorTest, SegmentsThatAreListedTwiceAreCreatedTwice) {
  HtrSegment& hips = Add("Hips");
  HtrSegment& leg = Add("Leg", &hips);
  Add("Foot", &leg).SetParent(&leg);
  Create(hips);
  EXPECT_EQ(ChildNames(Node("Leg")), "Foot Foot");
}

}  // namespace
}  // namespace orvane
