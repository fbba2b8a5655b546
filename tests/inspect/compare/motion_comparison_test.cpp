#include "inspect/compare/motion_comparison.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "formats/math/euler_rotation.h"
#include "formats/units/units.h"

namespace {

using orvane::DegreesBetween;
using orvane::EulerRotation;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::kRadiansPerDegree;
using orvane::MotionComparison;
using orvane::RotationMatrix3;
using orvane::StructureComparison;
using orvane::Vector3;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

RotationMatrix3 Turned(double x_deg, double y_deg, double z_deg) {
  return RotationMatrix3(EulerRotation(x_deg * kRadiansPerDegree, y_deg * kRadiansPerDegree,
                                       z_deg * kRadiansPerDegree));
}

TEST(DegreesBetweenTest, IsTheAngleOfTheTurnFromOneToTheOther) {
  for (const double angle : {0.0, 1e-12, 1e-9, 1e-6, 0.001, 1.0, 45.0, 90.0, 135.0, 179.0, 180.0}) {
    SCOPED_TRACE(angle);
    EXPECT_NEAR(DegreesBetween(Turned(0, 0, 0), Turned(angle, 0, 0)), angle, 1e-13);
    EXPECT_NEAR(DegreesBetween(Turned(0, -angle, 0), Turned(0, 0, 0)), angle, 1e-13);
    EXPECT_NEAR(DegreesBetween(Turned(0, 0, 30), Turned(0, 0, 30 + angle)), angle, 1e-13);
  }
}

// The cosine of a millionth of a degree is 1 to the last bit.
TEST(DegreesBetweenTest, KeepsTheDigitsOfTinyAngles) {
  const double angle = DegreesBetween(Turned(0, 0, 0), Turned(0, 0, 1e-6));
  EXPECT_NEAR(angle / 1e-6, 1.0, 1e-9);
}

TEST(DegreesBetweenTest, IsNothingBetweenARotationAndItself) {
  std::mt19937_64 random(20240801);
  std::uniform_real_distribution<double> angle(-180.0, 180.0);
  for (int round = 0; round < 1000; ++round) {
    const RotationMatrix3 rotation = Turned(angle(random), angle(random), angle(random));
    EXPECT_EQ(DegreesBetween(rotation, rotation), 0.0);
  }
}

TEST(DegreesBetweenTest, IsTheSameForAnglesThatTurnAlike) {
  EXPECT_NEAR(DegreesBetween(Turned(0, 0, 180), Turned(0, 0, -180)), 0.0, 1e-12);
  EXPECT_NEAR(DegreesBetween(Turned(10, 20, 30), Turned(190, 160, 210)), 0.0, 1e-12);
  EXPECT_NEAR(DegreesBetween(Turned(35, 90, 0), Turned(0, 90, -35)), 0.0, 1e-12);
}

class MotionComparisonTest : public testing::Test {
 protected:
  static HtrSegment* Add(HtrDocument& document, const std::string& name, HtrSegment* parent) {
    HtrSegment* segment = document.AddSegment(HtrSegment(name));
    segment->SetIsRoot(parent == nullptr);
    segment->SetParent(parent);
    return segment;
  }

  static void AddFrame(HtrSegment* segment, const Vector3& position, double z_deg = 0) {
    segment->AddFrame(position, Vector3(0, 0, z_deg * kRadiansPerDegree), 1);
  }

  MotionComparison Compare(const orvane::Tolerance& tolerance = {}) {
    structure_ = orvane::CompareStructure(a_, b_);
    return CompareMotion(structure_, a_, b_, tolerance);
  }

  HtrDocument a_;
  HtrDocument b_;
  StructureComparison structure_;
};

TEST_F(MotionComparisonTest, MeasuresJointsInTheWorldAndTurnsAgainstTheParent) {
  for (HtrDocument* document : {&a_, &b_}) {
    const double turn_deg = document == &a_ ? 0 : 90;
    HtrSegment* hips = Add(*document, "Hips", nullptr);
    HtrSegment* spine = Add(*document, "Spine", hips);
    AddFrame(hips, {0, 100, 0}, turn_deg);
    AddFrame(spine, {0, 10, 0});
  }
  const MotionComparison result = Compare();
  EXPECT_EQ(result.segments[0].position_mm.largest, 0.0);
  EXPECT_NEAR(result.segments[0].orientation_deg.largest, 90.0, 1e-12);
  EXPECT_NEAR(result.segments[1].position_mm.largest, 10 * std::sqrt(2.0), 1e-12);
  EXPECT_NEAR(result.segments[1].orientation_deg.largest, 0.0, 1e-12);
  EXPECT_EQ(result.position_pair, 1U);
  EXPECT_EQ(result.orientation_pair, 0U);
}

TEST_F(MotionComparisonTest, FindsTheLargestTheMeanAndTheFirstBeyond) {
  HtrSegment* in_a = Add(a_, "Hips", nullptr);
  HtrSegment* in_b = Add(b_, "Hips", nullptr);
  for (const double offset : {0.0, 0.5, 3.0, 3.0, 1.5}) {
    AddFrame(in_a, {7, 7, 7});
    AddFrame(in_b, {7, 7, 7 + offset}, 2 * offset);
  }
  a_.SetStartFrame(10);
  b_.SetStartFrame(10);
  const MotionComparison result = Compare({1.0, 180.0});
  for (const orvane::MotionDifference* difference : {&result.segments[0], &result.overall}) {
    EXPECT_EQ(difference->position_mm.largest, 3.0);
    EXPECT_EQ(difference->position_mm.largest_frame, 12);
    EXPECT_NEAR(difference->position_mm.Mean(), 8.0 / 5, 1e-12);
    EXPECT_NEAR(difference->orientation_deg.largest, 6.0, 1e-12);
    EXPECT_NEAR(difference->orientation_deg.Mean(), 16.0 / 5, 1e-12);
    EXPECT_EQ(difference->first_beyond, 12);
  }
  EXPECT_EQ(Compare({180.0, 0.9}).overall.first_beyond, 11);
  EXPECT_EQ(Compare({180.0, 180.0}).overall.first_beyond, std::nullopt);
  EXPECT_EQ(Compare({3.0, 180.0}).overall.first_beyond, std::nullopt) << "the limit is allowed";
}

TEST_F(MotionComparisonTest, NamesTheSegmentThatIsBeyondFirst) {
  for (HtrDocument* document : {&a_, &b_}) {
    const double offset = document == &a_ ? 0 : 1;
    HtrSegment* left = Add(*document, "Left", nullptr);
    HtrSegment* right = Add(*document, "Right", nullptr);
    AddFrame(left, {0, 0, 0});
    AddFrame(left, {5 * offset, 0, 0});
    AddFrame(right, {offset, 0, 0});
    AddFrame(right, {0, 0, 0});
  }
  const MotionComparison result = Compare();
  EXPECT_EQ(result.overall.first_beyond, 1);
  EXPECT_EQ(result.beyond_pair, 1U);
  EXPECT_EQ(result.position_pair, 0U);
}

TEST_F(MotionComparisonTest, OfEqualDifferencesTheFirstFrameCounts) {
  for (HtrDocument* document : {&a_, &b_}) {
    const double moved = document == &a_ ? 0 : 3;
    HtrSegment* hips = Add(*document, "Hips", nullptr);
    HtrSegment* prop = Add(*document, "Prop", nullptr);
    AddFrame(hips, Vector3(0, 0, 0));
    AddFrame(hips, Vector3(moved, 0, 0));
    AddFrame(prop, Vector3(moved, 0, 0));
    AddFrame(prop, Vector3(0, 0, 0));
  }
  const MotionComparison comparison = Compare();
  EXPECT_EQ(comparison.overall.position_mm.largest_frame, 1);
  EXPECT_EQ(
      structure_.hierarchy_a[structure_.pairs[comparison.position_pair].in_a].segment->GetName(),
      "Prop");
}

TEST_F(MotionComparisonTest, AnotherSplitOfBaseAndFrameIsNoDifference) {
  std::mt19937_64 random(20240802);
  std::uniform_real_distribution<double> angle(-3.0, 3.0);
  std::uniform_real_distribution<double> length(-1000.0, 1000.0);
  HtrSegment* in_a = Add(a_, "Hips", nullptr);
  HtrSegment* in_b = Add(b_, "Hips", nullptr);
  const EulerRotation base(0.3, -1.1, 2.0);
  in_a->SetBaseTranslation(10, 20, 30);
  in_a->SetBaseRotation(base[0], base[1], base[2]);
  for (int frame = 0; frame < 100; ++frame) {
    const Vector3 offset(length(random), length(random), length(random));
    const EulerRotation turn(angle(random), angle(random), angle(random));
    in_a->AddFrame(offset, turn, 1);
    in_b->AddFrame({offset.x() + 10, offset.y() + 20, offset.z() + 30},
                   EulerRotation(RotationMatrix3(base) * RotationMatrix3(turn)), 1);
  }
  const MotionComparison result = Compare();
  EXPECT_LT(result.overall.position_mm.largest, 1e-9);
  EXPECT_LT(result.overall.orientation_deg.largest, 1e-9);
}

TEST_F(MotionComparisonTest, LengthsAreComparedInMillimeters) {
  AddFrame(Add(a_, "Hips", nullptr), {1, 2, 3});
  AddFrame(Add(b_, "Hips", nullptr), {100, 200, 300.5});
  a_.SetCalibrationUnits(2);
  b_.SetCalibrationUnits(1);
  EXPECT_NEAR(Compare().overall.position_mm.largest, 5.0, 1e-9);
}

TEST_F(MotionComparisonTest, AFootIsWhatTheFilesMeanByIt) {
  AddFrame(Add(a_, "Hips", nullptr), {1, 0, 0});
  AddFrame(Add(b_, "Hips", nullptr), {0, 0, 0});
  a_.SetCalibrationUnits(4);
  EXPECT_EQ(Compare().overall.position_mm.largest, 2.1166666666666663);
}

TEST_F(MotionComparisonTest, FramesAreMatchedByTheirNumbers) {
  HtrSegment* in_a = Add(a_, "Hips", nullptr);
  HtrSegment* in_b = Add(b_, "Hips", nullptr);
  for (int number = 1; number <= 5; ++number) AddFrame(in_a, {number * 10.0, 0, 0});
  for (int number = 3; number <= 7; ++number) AddFrame(in_b, {number * 10.0, 0, 0});
  b_.SetStartFrame(3);
  const MotionComparison result = Compare();
  EXPECT_EQ(result.overall.position_mm.count, 3U);
  EXPECT_EQ(result.overall.position_mm.largest, 0.0);
}

TEST_F(MotionComparisonTest, FramesThatASegmentDoesNotHoldAreNotCompared) {
  for (HtrDocument* document : {&a_, &b_}) {
    HtrSegment* hips = Add(*document, "Hips", nullptr);
    HtrSegment* spine = Add(*document, "Spine", nullptr);
    for (int frame = 0; frame < 3; ++frame) AddFrame(hips, {1, 1, 1});
    AddFrame(spine, {2, 2, 2});
    if (document == &a_) AddFrame(spine, {9, 9, 9});
  }
  const MotionComparison result = Compare();
  EXPECT_EQ(result.segments[1].position_mm.count, 1U);
  EXPECT_EQ(result.overall.position_mm.count, 4U);
  EXPECT_EQ(result.overall.position_mm.largest, 0.0);
}

TEST_F(MotionComparisonTest, WithoutFramesTheBasePositionsAreCompared) {
  for (HtrDocument* document : {&a_, &b_}) {
    HtrSegment* hips = Add(*document, "Hips", nullptr);
    hips->SetBaseTranslation(0, document == &a_ ? 5 : 1, 0);
    hips->SetBaseRotation(0, document == &a_ ? 1 : 0, 0);
  }
  const MotionComparison result = Compare();
  EXPECT_EQ(result.overall.position_mm.largest, 4.0);
  EXPECT_NEAR(result.overall.orientation_deg.largest, 1 / kRadiansPerDegree, 1e-12);
}

TEST_F(MotionComparisonTest, SegmentsWithoutARootAreComparedAgainstTheirParent) {
  for (HtrDocument* document : {&a_, &b_}) {
    AddFrame(document->AddSegment(HtrSegment("Lost")), {document == &a_ ? 0.0 : 3.0, 4, 0});
  }
  EXPECT_EQ(Compare().overall.position_mm.largest, 3.0);
}

TEST_F(MotionComparisonTest, WhatIsNoNumberIsInfinitelyFar) {
  for (HtrDocument* document : {&a_, &b_}) {
    AddFrame(Add(*document, "Hips", nullptr), {kInfinity, 0, 0}, kInfinity);
  }
  const MotionComparison result = Compare();
  EXPECT_EQ(result.overall.position_mm.largest, kInfinity);
  EXPECT_EQ(result.overall.orientation_deg.largest, kInfinity);
  EXPECT_EQ(result.overall.first_beyond, 1);
}

TEST_F(MotionComparisonTest, NothingIsComparedWithoutACommonSegment) {
  AddFrame(Add(a_, "Hips", nullptr), {0, 0, 0});
  AddFrame(Add(b_, "Pelvis", nullptr), {0, 0, 0});
  const MotionComparison result = Compare();
  EXPECT_EQ(result.overall.position_mm.count, 0U);
  EXPECT_EQ(result.overall.position_mm.Mean(), 0.0);
}

TEST_F(MotionComparisonTest, AChainOfTenThousandIsCompared) {
  for (HtrDocument* document : {&a_, &b_}) {
    HtrSegment* last = nullptr;
    for (int i = 0; i < 10'000; ++i) {
      last = Add(*document, std::to_string(i), last);
      AddFrame(last, {document == &a_ ? 1.0 : 1.5, 0, 0});
    }
  }
  const MotionComparison result = Compare();
  EXPECT_NEAR(result.overall.position_mm.largest, 5000.0, 1e-9);
  EXPECT_EQ(result.position_pair, 9'999U);
}

}  // namespace
