#include "formats/edit/resampling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "formats/math/rotation_matrix3.h"
#include "formats/units/units.h"
#include "tests/formats/edit/small_documents.h"
#include "tests/formats/trc/samples.h"

namespace {

using orvane::HtrDocument;
using orvane::kRadiansPerDegree;
using orvane::RotationPath;
using orvane::TRCDocument;
using orvane::Vector3;
using testing::ElementsAre;
using Position = std::array<double, 3>;

TEST(Resampling, TakesEveryOtherFrameAsItIs) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  TRCDocument half;
  Resample(cloud, {2, 1}, half);
  EXPECT_EQ(half.NumFrames(), 3);
  EXPECT_EQ(half.FirstFrame(), 101);
  EXPECT_THAT(test::SamplesOf(*half.MarkerAt(0)),
              ElementsAre(Position{0, 2, 3}, Position{20, 2, 3}, Position{40, 2, 3}));
  EXPECT_THAT(test::SamplesOf(*half.MarkerAt(1)),
              ElementsAre(Position{0, 20, 30}, std::nullopt, Position{4, 20, 30}));
}

TEST(Resampling, PutsFramesBetweenFramesAndNoneAcrossAGap) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  TRCDocument more;
  Resample(cloud, {1, 2}, more);
  EXPECT_EQ(more.NumFrames(), 11);
  EXPECT_EQ(test::SampleAt(*more.MarkerAt(0), 1), (Position{5, 2, 3}));
  EXPECT_THAT(test::SamplesOf(*more.MarkerAt(1)),
              ElementsAre(Position{0, 20, 30}, std::nullopt, std::nullopt, std::nullopt,
                          std::nullopt, std::nullopt, Position{3, 20, 30}, Position{3.5, 20, 30},
                          Position{4, 20, 30}, std::nullopt, std::nullopt));
}

TEST(Resampling, EndsAtTheLastFrameThatIsThere) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  TRCDocument other;
  Resample(cloud, {6, 5}, other);  // 60 to 50 frames per second
  EXPECT_EQ(other.NumFrames(), 5);
  EXPECT_DOUBLE_EQ(test::SampleAt(*other.MarkerAt(0), 4)->at(0), 48);
}

TEST(Resampling, OfMotionInterpolatesPlacesScalesAndAngles) {
  HtrDocument walker;
  test::FillWalker(walker);
  for (const RotationPath path : {RotationPath::kLinear, RotationPath::kSlerp}) {
    HtrDocument more;
    Resample(walker, {1, 2}, path, more);
    const orvane::HtrSegment& hips = more.segments()[0];
    EXPECT_EQ(more.GetNumFrames(), 11U);
    EXPECT_EQ(more.GetStartFrame(), 11);
    EXPECT_DOUBLE_EQ(hips.GetFrameTranslation(3).x(), 15);
    EXPECT_DOUBLE_EQ(hips.GetFrameScale(3), 2.5);
    EXPECT_NEAR(hips.GetFrameRotation(3)[0], 1.5 * kRadiansPerDegree, 1e-12);
    EXPECT_EQ(hips.GetFrameRotation(4)[0], walker.segments()[0].GetFrameRotation(2)[0]);
  }
}

// From 170 to -170 degrees are 20 degrees, by way of 180, and not 340.
TEST(Resampling, TurnsTheShorterWayRound) {
  for (const RotationPath path : {RotationPath::kLinear, RotationPath::kSlerp}) {
    HtrDocument turning;
    orvane::HtrSegment& hips = test::AddSegment(turning, "Hips", nullptr);
    hips.AddFrame({}, Vector3{0, 0, 170 * kRadiansPerDegree}, 1);
    hips.AddFrame({}, Vector3{0, 0, -170 * kRadiansPerDegree}, 1);
    HtrDocument more;
    Resample(turning, {1, 2}, path, more);
    EXPECT_NEAR(more.segments()[0].GetFrameRotation(1)[2], 180 * kRadiansPerDegree, 1e-12);
  }
}

// Halfway between two turns by slerp, what is left is as far as what is done.
TEST(Resampling, BySlerpGoesAboutOneAxis) {
  HtrDocument turning;
  orvane::HtrSegment& hips = test::AddSegment(turning, "Hips", nullptr);
  hips.AddFrame({}, Vector3{0.3, -0.8, 1.9}, 1);
  hips.AddFrame({}, Vector3{-1.1, 0.4, 0.2}, 1);
  HtrDocument more;
  Resample(turning, {1, 3}, RotationPath::kSlerp, more);
  const auto matrix = [&more](std::size_t frame) {
    return orvane::RotationMatrix3(more.segments()[0].GetFrameRotation(frame));
  };
  const auto first_step = matrix(0).Transposed() * matrix(1);
  for (std::size_t frame = 1; frame < 3; ++frame) {
    const auto step = matrix(frame).Transposed() * matrix(frame + 1);
    for (unsigned row = 0; row < 3; ++row) {
      for (unsigned column = 0; column < 3; ++column) {
        EXPECT_NEAR(step.Element(row, column), first_step.Element(row, column), 1e-12);
      }
    }
  }
}

TEST(Resampling, MakesNoNumberOfWhatIsInfinite) {
  const double infinite = std::numeric_limits<double>::infinity();
  TRCDocument cloud;
  orvane::TRCMarker marker("A");
  marker.AppendPosition(infinite, 0, 0);
  marker.AppendPosition(-infinite, 0, 0);
  cloud.AddMarker(marker);
  TRCDocument more;
  Resample(cloud, {1, 4}, more);
  EXPECT_EQ(test::SampleAt(*more.MarkerAt(0), 1)->at(0), infinite);
  EXPECT_EQ(test::SampleAt(*more.MarkerAt(0), 3)->at(0), -infinite);
}

}  // namespace
