#include "formats/edit/lengths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/formats/edit/small_documents.h"
#include "tests/formats/trc/samples.h"

namespace {

using orvane::ConvertLengths;
using orvane::HtrDocument;
using orvane::TRCDocument;
using testing::ElementsAre;

constexpr std::uint32_t kCentimeters = 1;
constexpr std::uint32_t kMeters = 2;
constexpr std::uint32_t kInches = 3;
constexpr std::uint32_t kFeet = 4;
constexpr std::uint32_t kYards = 5;

TEST(Lengths, AreConvertedAndGapsStayGaps) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  ConvertLengths(cloud, kCentimeters);
  EXPECT_EQ(cloud.Units(), 1);
  using Position = std::array<double, 3>;
  EXPECT_THAT(test::SamplesOf(*cloud.MarkerAt(1)),
              ElementsAre(Position{0, 2, 3}, std::nullopt, std::nullopt, Position{0.3, 2, 3},
                          Position{0.4, 2, 3}, std::nullopt));
}

TEST(Lengths, OfASkeletonAreThoseOfAllItsFrames) {
  HtrDocument walker;
  test::FillWalker(walker);
  walker.SetNumFrames(2);  // fewer are announced than are there
  ConvertLengths(walker, kMeters);
  EXPECT_EQ(walker.GetCalibrationUnits(), kMeters);
  EXPECT_EQ(walker.segments()[0].GetBaseTranslation().y(), 0.95);
  EXPECT_EQ(walker.segments()[0].GetFrameTranslation(5).x(), 0.05);
  EXPECT_EQ(walker.segments()[0].GetFrameScale(5), 6.0);
  EXPECT_EQ(walker.FindSegment("Head")->GetBoneLength(), 0.2);
}

// As they are in the world.
TEST(Lengths, KnowInchesFeetAndYards) {
  for (const auto& [unit, millimeters] :
       {std::pair{kInches, 25.4}, std::pair{kFeet, 304.8}, std::pair{kYards, 914.4}}) {
    TRCDocument cloud;
    test::FillCloud(cloud);
    cloud.SetUnits(static_cast<int>(unit));
    ConvertLengths(cloud, 0);
    EXPECT_DOUBLE_EQ(test::SampleAt(*cloud.MarkerAt(2), 0)->at(0), 7 * millimeters);
    ConvertLengths(cloud, unit);
    EXPECT_DOUBLE_EQ(test::SampleAt(*cloud.MarkerAt(2), 0)->at(0), 7);
  }
}

}  // namespace
