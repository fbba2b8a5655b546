#include "plugin/import_htr/motion_applier.h"

#include <gtest/gtest.h>

#include "tests/plugin/import_htr/skeleton_fixture.h"

namespace orvane {
namespace {

class MotionApplierTest : public test::SkeletonTest {
 protected:
  bool Apply(INode& node, const HtrSegment& segment, std::int64_t budget = 1'000'000) {
    application_.progress().Start("Test", true, nullptr, nullptr);
    MotionApplier applier(interface(), options_, times_, document_.GetNumSegments(), budget);
    const bool applied = applier.Apply(node, segment);
    over_budget_ = applier.OverBudget();
    application_.progress().End();
    return applied;
  }

  // Adds a segment with one frame.
  HtrSegment& AddMoving(const std::string& name, HtrSegment* parent = nullptr) {
    HtrSegment& segment = Add(name, parent);
    segment.AddFrame(Vector3(1, 2, 3), Vector3(), 1.0);
    return segment;
  }

  static bool IsKeyed(const host::Node& node) {
    return node.Transform()->Position().KeyCount() > 0;
  }

  // The percentages that were shown.
  std::vector<int> Percentages() {
    std::vector<int> percentages;
    for (const host::ProgressEvent& event : application_.progress().Events()) {
      if (event.kind == host::ProgressEvent::Kind::kUpdate) percentages.push_back(event.percent);
    }
    return percentages;
  }

  KeyTimes times_{160, 1, 1};
  bool over_budget_ = false;
};

TEST_F(MotionApplierTest, PairsBonesWithSegmentsByName) {
  HtrSegment& hips = AddMoving("Hips");
  HtrSegment& leg = AddMoving("Leg", &hips);
  AddMoving("Foot", &leg);
  host::Node& hips_bone = AddBone("Hips");
  host::Node& leg_bone = AddBone("Leg", &hips_bone);
  host::Node& foot_bone = AddBone("Foot", &leg_bone);
  EXPECT_TRUE(Apply(hips_bone, hips));
  EXPECT_TRUE(IsKeyed(hips_bone));
  EXPECT_TRUE(IsKeyed(leg_bone));
  EXPECT_TRUE(IsKeyed(foot_bone));
  EXPECT_EQ(leg_bone.Transform()->Position().KeyValue(0), Point3(2, 3, 1));
}

TEST_F(MotionApplierTest, TheFirstPairsNamesAreNotCompared) {
  HtrSegment& hips = AddMoving("Hips");
  host::Node& bone = AddBone("Anything");
  EXPECT_TRUE(Apply(bone, hips));
  EXPECT_TRUE(IsKeyed(bone));
}

TEST_F(MotionApplierTest, ASegmentWithoutABoneIsLeftOutWithAllBelowIt) {
  HtrSegment& hips = AddMoving("Hips");
  HtrSegment& leg = AddMoving("Leg", &hips);
  AddMoving("Foot", &leg);
  AddMoving("Arm", &hips);
  host::Node& hips_bone = AddBone("Hips");
  host::Node& foot_bone = AddBone("Foot", &hips_bone);
  host::Node& arm_bone = AddBone("Arm", &hips_bone);
  EXPECT_TRUE(Apply(hips_bone, hips));
  EXPECT_FALSE(IsKeyed(foot_bone));
  EXPECT_TRUE(IsKeyed(arm_bone));
}

TEST_F(MotionApplierTest, OtherChildrenOfTheSceneKeepTheirAnimation) {
  HtrSegment& hips = AddMoving("Hips");
  AddMoving("Leg", &hips);
  host::Node& hips_bone = AddBone("Hips");
  host::Node& other = AddBone("leg", &hips_bone);
  host::Node& dummy = AddDummy("Leg", &hips_bone);
  other.Transform()->Position().SetKey(160, Point3(7, 7, 7));
  EXPECT_TRUE(Apply(hips_bone, hips));
  EXPECT_EQ(other.Transform()->Position().KeyValue(0), Point3(7, 7, 7));
  EXPECT_FALSE(IsKeyed(dummy));
}

TEST_F(MotionApplierTest, TheFirstOfSeveralBonesOfOneNameIsKeyed) {
  HtrSegment& hips = AddMoving("Hips");
  AddMoving("Leg", &hips);
  host::Node& hips_bone = AddBone("Hips");
  host::Node& first = AddBone("Leg", &hips_bone);
  host::Node& second = AddBone("Leg", &hips_bone);
  EXPECT_TRUE(Apply(hips_bone, hips));
  EXPECT_TRUE(IsKeyed(first));
  EXPECT_FALSE(IsKeyed(second));
}

TEST_F(MotionApplierTest, ProgressGoesFrom10To100AsSegmentsAreFinished) {
  // Finished in the order Foot, Leg, Arm, Hips, of five segments.
  HtrSegment& hips = AddMoving("Hips");
  HtrSegment& leg = AddMoving("Leg", &hips);
  AddMoving("Foot", &leg);
  AddMoving("Arm", &hips);
  AddMoving("NotInTheScene", &hips);
  host::Node& hips_bone = AddBone("Hips");
  AddBone("Foot", &AddBone("Leg", &hips_bone));
  AddBone("Arm", &hips_bone);
  EXPECT_TRUE(Apply(hips_bone, hips));
  EXPECT_EQ(Percentages(), (std::vector<int>{28, 46, 64, 82}));
}

TEST_F(MotionApplierTest, ProgressIsRoundedDown) {
  HtrSegment& hips = AddMoving("Hips");
  for (int i = 0; i < 6; ++i) AddMoving("S" + std::to_string(i), &hips);
  EXPECT_TRUE(Apply(AddBone("Hips"), hips));
  EXPECT_EQ(Percentages(), (std::vector<int>{22}));  // 10 + 90 / 7
}

TEST_F(MotionApplierTest, AFailureEndsEverythingThatWouldFollow) {
  HtrSegment& hips = AddMoving("Hips");
  AddMoving("Leg", &hips);
  AddMoving("Arm", &hips);
  host::Node& hips_bone = AddBone("Hips");
  AddBone("Leg", &hips_bone);
  host::Node& arm_bone = AddBone("Arm", &hips_bone);
  scene().Faults().RefuseQuery(3);  // the position of Leg
  EXPECT_FALSE(Apply(hips_bone, hips));
  EXPECT_FALSE(over_budget_);
  EXPECT_TRUE(IsKeyed(hips_bone));
  EXPECT_FALSE(IsKeyed(arm_bone));
  EXPECT_TRUE(Percentages().empty());
  // Suspended for the bone that failed, resumed for the one before.
  EXPECT_EQ(scene().Animation().AnimateMode().SuspendDepth(), 1U);
}

TEST_F(MotionApplierTest, ASegmentThatIsListedTwiceIsKeyedTwice) {
  HtrSegment& hips = AddMoving("Hips");
  AddMoving("Leg", &hips).SetParent(&hips);
  host::Node& hips_bone = AddBone("Hips");
  AddBone("Leg", &hips_bone);
  EXPECT_TRUE(Apply(hips_bone, hips));
  EXPECT_EQ(Percentages(), (std::vector<int>{55, 100, 145}));
}

TEST_F(MotionApplierTest, MoreSegmentsThanTheBudgetFail) {
  HtrSegment& hips = AddMoving("Hips");
  AddMoving("Leg", &hips).SetParent(&hips);
  host::Node& hips_bone = AddBone("Hips");
  AddBone("Leg", &hips_bone);
  EXPECT_TRUE(Apply(hips_bone, hips, 3));
  EXPECT_FALSE(over_budget_);
  EXPECT_FALSE(Apply(hips_bone, hips, 2));
  EXPECT_TRUE(over_budget_);
}

TEST_F(MotionApplierTest, SegmentsInACircleEndWhereTheBonesEnd) {
  HtrSegment& hips = AddMoving("Hips");
  HtrSegment& leg = AddMoving("Leg", &hips);
  hips.SetParent(&leg);
  host::Node& hips_bone = AddBone("Hips");
  host::Node& inner = AddBone("Hips", &AddBone("Leg", &hips_bone));
  EXPECT_TRUE(Apply(hips_bone, hips));
  EXPECT_TRUE(IsKeyed(inner));
}

}  // namespace
}  // namespace orvane
