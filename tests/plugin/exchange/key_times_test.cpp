#include "plugin/exchange/key_times.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

constexpr std::int64_t kFirst = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kLast = std::numeric_limits<std::int32_t>::max();

TEST(KeyTimesTest, FramesAreKeyedAtTheirTicks) {
  const KeyTimes times(160, 1, 3);
  EXPECT_EQ(times.Tick(0), 160);
  EXPECT_EQ(times.Tick(2), 480);
  EXPECT_EQ(times.BeginFrame(), 0);
  EXPECT_EQ(times.EndFrame(), 3);
}

TEST(KeyTimesTest, TheBasePositionStandsOneFrameBefore) {
  EXPECT_EQ(KeyTimes(160, 1, 3).Tick(-1), 0);
  EXPECT_EQ(KeyTimes(160, -4, 3).Tick(-1), -800);
}

TEST(KeyTimesTest, AllTicksOfTheFramesAreCleared) {
  const KeyTimes times(160, 1, 3);
  EXPECT_EQ(times.BeginTick(), 160);
  EXPECT_EQ(times.EndTick(), 640);
}

TEST(KeyTimesTest, NoFrameMeansNoTick) {
  const KeyTimes times(160, 5, 0);
  EXPECT_EQ(times.BeginFrame(), times.EndFrame());
  EXPECT_EQ(times.BeginTick(), times.EndTick());
}

TEST(KeyTimesTest, FramesBeyondTheLastTickAreLeftOut) {
  // 13,421,772 frames of 160 ticks fit before the end of time.
  const KeyTimes times(160, 13'421'770, 10);
  EXPECT_EQ(times.BeginFrame(), 0);
  EXPECT_EQ(times.EndFrame(), 3);
  EXPECT_EQ(times.Tick(2), 2'147'483'520);
  EXPECT_EQ(times.Tick(3), std::nullopt);
  EXPECT_EQ(times.BeginTick(), 2'147'483'200);
  EXPECT_EQ(times.EndTick(), kLast + 1);
}

TEST(KeyTimesTest, FramesBeforeTheFirstTickAreLeftOut) {
  const KeyTimes times(160, -13'421'774, 10);
  EXPECT_EQ(times.Tick(1), std::nullopt);
  EXPECT_EQ(times.BeginFrame(), 2);
  EXPECT_EQ(times.Tick(2), -2'147'483'520);
  EXPECT_EQ(times.EndFrame(), 10);
  EXPECT_EQ(times.BeginTick(), -2'147'483'520);
}

TEST(KeyTimesTest, FramesFarBeyondEitherEndLeaveNothing) {
  for (const std::int64_t first : {kFirst * 2, kLast * 2}) {
    const KeyTimes times(4800, first, 1000);
    EXPECT_EQ(times.BeginFrame(), times.EndFrame()) << first;
    EXPECT_EQ(times.BeginTick(), times.EndTick()) << first;
    EXPECT_EQ(times.Tick(0), std::nullopt) << first;
    EXPECT_EQ(times.Tick(-1), std::nullopt) << first;
  }
}

TEST(KeyTimesTest, TheWholeOfTimeFits) {
  const KeyTimes times(1, kFirst, kLast - kFirst + 1);
  EXPECT_EQ(times.BeginTick(), kFirst);
  EXPECT_EQ(times.EndTick(), kLast + 1);
  EXPECT_EQ(times.Tick(times.EndFrame() - 1), kLast);
}

TEST(FrameIntervalTest, SpansFromFrameToFrame) {
  EXPECT_EQ(FrameInterval(160, 1, 10), Interval(160, 1600));
  EXPECT_EQ(FrameInterval(160, -2, 0), Interval(-320, 0));
}

TEST(FrameIntervalTest, EndsThatDoNotFitMoveToTheNearestTick) {
  EXPECT_EQ(FrameInterval(4800, kFirst, kLast),
            Interval(static_cast<TimeValue>(kFirst), static_cast<TimeValue>(kLast)));
}

}  // namespace
}  // namespace orvane
