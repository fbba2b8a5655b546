#include "formats/bvh/plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "tests/formats/bvh/skeletons.h"

namespace {

using orvane::BvhLosses;
using orvane::BvhOptions;
using orvane::BvhPlan;
using orvane::BvhPositions;
using orvane::BvhRefusal;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::PlanBvh;
using test::AddFrame;
using test::AddSegment;
using test::BentTrunk;
using testing::ElementsAre;
using testing::IsEmpty;

BvhLosses LossesOf(const HtrDocument& document, const BvhOptions& options = {}) {
  const BvhPlan plan = PlanBvh(document, options);
  EXPECT_FALSE(plan.refusal.has_value());
  return plan.losses;
}

TEST(BvhPlanTest, NothingIsLostOfAPlainMotion) {
  BentTrunk trunk;
  const BvhLosses losses = LossesOf(trunk.document());
  EXPECT_THAT(losses.names, IsEmpty());
  EXPECT_THAT(losses.translations, IsEmpty());
  EXPECT_THAT(losses.frames, IsEmpty());
  EXPECT_THAT(losses.scales, IsEmpty());
  EXPECT_EQ(losses.turned_in_base, 0U);
  EXPECT_THAT(losses.other_roots, IsEmpty());
  EXPECT_EQ(losses.segments_of_other_roots, 0U);
  EXPECT_THAT(losses.unattached, IsEmpty());
  EXPECT_FALSE(losses.first_frame.has_value());
  EXPECT_FALSE(losses.has_no_frames);
}

TEST(BvhPlanTest, TellsHowFarAHeldJointGetsFromItsBaseTranslation) {
  BentTrunk trunk;
  trunk.document().SetCalibrationUnits(1);  // cm
  ASSERT_TRUE(trunk.spine().SetFrameTranslation(0, 1, 0, 0));
  ASSERT_TRUE(trunk.spine().SetFrameTranslation(1, 0, 3, 4));
  const BvhLosses losses = LossesOf(trunk.document());
  ASSERT_EQ(losses.translations.size(), 1U);
  EXPECT_EQ(losses.translations[0].segment, &trunk.spine());
  EXPECT_DOUBLE_EQ(losses.translations[0].greatest_error_mm, 50.0);
  EXPECT_EQ(losses.translations[0].frame, 1U);
  BvhOptions options;
  options.positions = BvhPositions::kAll;
  EXPECT_THAT(LossesOf(trunk.document(), options).translations, IsEmpty());
}

TEST(BvhPlanTest, AMillionthOfTheHeightIsNoChange) {
  for (const auto& [factor, is_constant] : {std::pair(0.9e-6, true), std::pair(1.1e-6, false)}) {
    BentTrunk trunk;  // 120 high
    ASSERT_TRUE(trunk.spine().SetFrameTranslation(1, 0, 0, 120 * factor));
    BvhOptions options;
    options.positions = BvhPositions::kAll;
    EXPECT_EQ(PlanBvh(trunk.document(), options).joints[1].has_positions, !is_constant);
    EXPECT_EQ(LossesOf(trunk.document()).translations.empty(), is_constant);
  }
}

// As a file whose base position is all zeros.
TEST(BvhPlanTest, ASkeletonFoldedUpInItsBasePositionIsAsHighAsInItsFirstFrame) {
  HtrDocument document;
  HtrSegment* hips = AddSegment(document, "Hips", nullptr);
  HtrSegment* head = AddSegment(document, "Head", hips);
  AddFrame(*hips, {});
  AddFrame(*head, {0, -170, 0});
  EXPECT_EQ(PlanBvh(document, {}).height, 170.0);
}

TEST(BvhPlanTest, TellsNewNames) {
  BentTrunk trunk;
  trunk.hips().SetName("a b");
  trunk.spine().SetName("a\tb");
  const BvhLosses losses = LossesOf(trunk.document());
  ASSERT_EQ(losses.names.size(), 2U);
  EXPECT_EQ(losses.names[0].name, "a_b");
  EXPECT_TRUE(losses.names[0].is_respelled);
  EXPECT_FALSE(losses.names[0].is_numbered);
  EXPECT_EQ(losses.names[1].segment, &trunk.spine());
  EXPECT_EQ(losses.names[1].name, "a_b_2");
  EXPECT_TRUE(losses.names[1].is_numbered);
}

TEST(BvhPlanTest, TellsHeldFrames) {
  BentTrunk trunk;
  AddFrame(trunk.hips(), {});
  HtrSegment* head = AddSegment(trunk.document(), "Head", &trunk.spine());
  const BvhLosses losses = LossesOf(trunk.document());
  ASSERT_EQ(losses.frames.size(), 2U);
  EXPECT_EQ(losses.frames[0].segment, &trunk.spine());
  EXPECT_EQ(losses.frames[0].frames, 2U);
  EXPECT_EQ(losses.frames[1].segment, head);
  EXPECT_EQ(losses.frames[1].frames, 0U);
}

TEST(BvhPlanTest, TellsScales) {
  BentTrunk trunk;
  AddFrame(trunk.hips(), {}, {}, 1.5);
  AddFrame(trunk.hips(), {}, {}, 0.25);
  AddFrame(trunk.hips(), {}, {}, std::numeric_limits<double>::quiet_NaN());
  const BvhLosses losses = LossesOf(trunk.document());
  ASSERT_EQ(losses.scales.size(), 1U);
  EXPECT_EQ(losses.scales[0].segment, &trunk.hips());
  EXPECT_EQ(losses.scales[0].frames, 3U);
  EXPECT_EQ(losses.scales[0].farthest, 0.25);
}

TEST(BvhPlanTest, TellsBaseRotationsAndTheFirstFramesNumber) {
  BentTrunk trunk;
  trunk.spine().SetBaseRotation(0, 1, 0);
  trunk.document().SetStartFrame(228);
  EXPECT_EQ(LossesOf(trunk.document()).turned_in_base, 1U);
  EXPECT_EQ(LossesOf(trunk.document()).first_frame, 228);
}

TEST(BvhPlanTest, TellsWhatIsLeftOut) {
  BentTrunk trunk;
  HtrSegment* prop = AddSegment(trunk.document(), "Prop", nullptr);
  AddSegment(trunk.document(), "Handle", prop);
  HtrSegment* lost = trunk.document().AddSegment(HtrSegment("Lost"));
  const BvhLosses losses = LossesOf(trunk.document());
  EXPECT_THAT(losses.other_roots, ElementsAre(prop));
  EXPECT_EQ(losses.segments_of_other_roots, 2U);
  EXPECT_THAT(losses.unattached, ElementsAre(lost));
  BvhOptions options;
  options.root = 1;
  const BvhLosses of_prop = LossesOf(trunk.document(), options);
  EXPECT_THAT(of_prop.other_roots, ElementsAre(&trunk.hips()));
  EXPECT_EQ(of_prop.segments_of_other_roots, 2U);
}

TEST(BvhPlanTest, TellsThatThereAreNoFrames) {
  HtrDocument document;
  AddSegment(document, "Hips", nullptr);
  const BvhPlan plan = PlanBvh(document, {});
  EXPECT_EQ(plan.frame_count, 1U);
  EXPECT_TRUE(plan.losses.has_no_frames);
  EXPECT_THAT(plan.losses.frames, IsEmpty());
}

TEST(BvhPlanTest, RefusesWhereThereIsNoSuchRoot) {
  HtrDocument document;
  EXPECT_EQ(PlanBvh(document, {}).refusal.value().reason, BvhRefusal::Reason::kNoRoot);
  document.AddSegment(HtrSegment("Lost"));
  EXPECT_EQ(PlanBvh(document, {}).refusal.value().reason, BvhRefusal::Reason::kNoRoot);
  BentTrunk trunk;
  BvhOptions options;
  options.root = 1;
  EXPECT_EQ(PlanBvh(trunk.document(), options).refusal.value().reason, BvhRefusal::Reason::kNoRoot);
}

TEST(BvhPlanTest, RefusesTimesOfAFrameThatAreNone) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  BentTrunk trunk;
  for (const double time : {0.0, -0.0, -0.01, kInfinity, std::nan("")}) {
    BvhOptions options;
    options.frame_time = time;
    const BvhPlan plan = PlanBvh(trunk.document(), options);
    ASSERT_TRUE(plan.refusal.has_value()) << time;
    EXPECT_EQ(plan.refusal->reason, BvhRefusal::Reason::kFrameTime) << time;
  }
  for (const int rate : {0, -60}) {
    trunk.document().SetDataFrameRate(rate);
    EXPECT_EQ(PlanBvh(trunk.document(), {}).refusal.value().reason, BvhRefusal::Reason::kFrameTime);
  }
}

TEST(BvhPlanTest, RefusesNumbersThatAreNotFinite) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double number : {kInfinity, -kInfinity, std::nan("")}) {
    BentTrunk moved;
    ASSERT_TRUE(moved.spine().SetFrameTranslation(1, 0, number, 0));
    BvhRefusal refusal = PlanBvh(moved.document(), {}).refusal.value();
    EXPECT_EQ(refusal.reason, BvhRefusal::Reason::kNotFinite);
    EXPECT_EQ(refusal.segment, &moved.spine());
    EXPECT_EQ(refusal.frame, 1U);

    BentTrunk turned;
    AddFrame(turned.hips(), {}, {0, 0, number});
    refusal = PlanBvh(turned.document(), {}).refusal.value();
    EXPECT_EQ(refusal.segment, &turned.hips());
    EXPECT_EQ(refusal.frame, 2U);

    BentTrunk based;
    based.spine().SetBaseTranslation(number, 0, 0);
    refusal = PlanBvh(based.document(), {}).refusal.value();
    EXPECT_EQ(refusal.segment, &based.spine());
    EXPECT_FALSE(refusal.frame.has_value());

    BentTrunk stretched;
    stretched.spine().SetBoneLength(number);
    EXPECT_EQ(PlanBvh(stretched.document(), {}).refusal.value().segment, &stretched.spine());
  }
}

TEST(BvhPlanTest, RefusesSumsThatAreNotFinite) {
  BentTrunk trunk;
  trunk.spine().SetBaseTranslation(1e308, 0, 0);
  ASSERT_TRUE(trunk.spine().SetFrameTranslation(1, 1e308, 0, 0));
  EXPECT_EQ(PlanBvh(trunk.document(), {}).refusal.value().frame, 1U);
}

TEST(BvhPlanTest, AChangeAsLargeAsTheNumbersGoIsAChange) {
  BentTrunk trunk;
  ASSERT_TRUE(trunk.hips().SetFrameTranslation(0, -1e308, 0, 0));
  ASSERT_TRUE(trunk.spine().SetFrameTranslation(0, 1.5e308, 0, 0));
  EXPECT_EQ(LossesOf(trunk.document()).translations.size(), 1U);
}

}  // namespace
