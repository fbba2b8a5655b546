#include "formats/trc/marker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "tests/formats/trc/samples.h"

namespace orvane {
namespace {

using test::Sample;
using test::SamplesOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Sample kDropout = std::nullopt;

Sample At(double x, double y, double z) { return std::array<double, 3>{x, y, z}; }

TEST(TRCMarker, StartsWithItsNameEnabledAndWithoutSamples) {
  const TRCMarker marker("LFHD");
  EXPECT_EQ(marker.Name(), "LFHD");
  EXPECT_TRUE(marker.IsEnabled());
  EXPECT_EQ(marker.SampleCount(), 0u);
  EXPECT_THAT(SamplesOf(marker), IsEmpty());
}

TEST(TRCMarker, CanBeRenamedAndDisabled) {
  TRCMarker marker("LFHD");
  marker.SetName("Head");
  marker.SetEnabled(false);
  EXPECT_EQ(marker.Name(), "Head");
  EXPECT_FALSE(marker.IsEnabled());
}

TEST(TRCMarker, KeepsPositionsAndDropoutsInOrder) {
  TRCMarker marker("a");
  marker.AppendDropout();
  marker.AppendPosition(1, 2, 3);
  marker.AppendDropout();
  marker.AppendDropout();
  marker.AppendPosition(4, 5, 6);
  marker.AppendPosition(7, 8, 9);
  marker.AppendDropouts(0);
  EXPECT_EQ(marker.SampleCount(), 6u);
  EXPECT_THAT(SamplesOf(marker),
              ElementsAre(kDropout, At(1, 2, 3), kDropout, kDropout, At(4, 5, 6), At(7, 8, 9)));
}

TEST(TRCMarker, WritesZerosForDropoutsAndPastTheEnd) {
  TRCMarker marker("a");
  marker.AppendDropout();
  for (const std::size_t index : {std::size_t{0}, std::size_t{1}, ~std::size_t{0}}) {
    double x = 9;
    double y = 9;
    double z = 9;
    EXPECT_FALSE(marker.GetSample(index, x, y, z));
    EXPECT_EQ(x, 0.0);
    EXPECT_EQ(y, 0.0);
    EXPECT_EQ(z, 0.0);
  }
}

TEST(TRCMarker, SetsASampleAndMakesItPresent) {
  TRCMarker marker("a");
  marker.AppendPosition(1, 2, 3);
  marker.AppendDropout();
  EXPECT_TRUE(marker.SetSample(0, 4, 5, 6));
  EXPECT_TRUE(marker.SetSample(1, 7, 8, 9));
  EXPECT_FALSE(marker.SetSample(2, 1, 1, 1));
  EXPECT_THAT(SamplesOf(marker), ElementsAre(At(4, 5, 6), At(7, 8, 9)));
}

TEST(TRCMarker, ScalesPositionsAndMakesDropoutsPresentAtTheOrigin) {
  TRCMarker marker("a");
  marker.AppendDropout();
  marker.AppendPosition(1, -2, 3);
  marker.Scale(2.0);
  marker.AppendDropout();
  EXPECT_THAT(SamplesOf(marker), ElementsAre(At(0, 0, 0), At(2, -4, 6), kDropout));
  marker.Scale(1.0);
  EXPECT_THAT(SamplesOf(marker), ElementsAre(At(0, 0, 0), At(2, -4, 6), At(0, 0, 0)));
}

TEST(TRCMarker, TellsItsGaps) {
  TRCMarker marker("a");
  marker.AppendDropouts(3);
  marker.AppendPosition(1, 2, 3);
  marker.AppendDropouts(2);
  ASSERT_EQ(marker.Gaps().size(), 2u);
  EXPECT_EQ(marker.Gaps()[0].begin, 0u);
  EXPECT_EQ(marker.Gaps()[0].end, 3u);
  EXPECT_EQ(marker.Gaps()[1].begin, 4u);
  EXPECT_EQ(marker.Gaps()[1].end, 6u);
}

// Against a plain list of samples.
TEST(TRCMarker, StaysRightThroughAnyOrderOfCalls) {
  std::mt19937 random(5);
  for (int round = 0; round < 200; ++round) {
    TRCMarker marker("a");
    std::vector<Sample> expected;
    for (int step = 0; step < 60; ++step) {
      const double value = step + 1;
      switch (random() % 4) {
        case 0:
          marker.AppendPosition(value, value, value);
          expected.push_back(At(value, value, value));
          break;
        case 1:
          marker.AppendDropout();
          expected.push_back(kDropout);
          break;
        case 2: {
          const std::size_t count = random() % 4;
          marker.AppendDropouts(count);
          expected.insert(expected.end(), count, kDropout);
          break;
        }
        default: {
          const std::size_t index = random() % (expected.size() + 1);
          EXPECT_EQ(marker.SetSample(index, value, 0, 0), index < expected.size());
          if (index < expected.size()) expected[index] = At(value, 0, 0);
        }
      }
      ASSERT_EQ(SamplesOf(marker), expected);
    }
  }
}

}  // namespace
}  // namespace orvane
