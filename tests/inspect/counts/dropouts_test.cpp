#include "inspect/counts/dropouts.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

// Those of nine frames with positions in 0, 1, 4, 5 and 7.
const std::vector<FrameGap> kFickle = {{2, 4}, {6, 7}, {8, 9}};

TEST(CountDropoutsTest, CountsThoseOfTheFramesAskedFor) {
  const struct {
    FrameSpan frames;
    std::int64_t expected;
  } cases[] = {
      {{0, 8}, 4}, {{0, -1}, 0}, {{0, 1}, 0}, {{0, 2}, 1},  {{2, 3}, 2},    {{3, 6}, 2},
      {{4, 5}, 0}, {{7, 7}, 0},  {{8, 8}, 1}, {{0, 11}, 7}, {{20, 29}, 10}, {{5, 4}, 0},
  };
  for (const auto& example : cases) {
    EXPECT_EQ(CountDropouts(kFickle, 9, example.frames), example.expected)
        << example.frames.first << " to " << example.frames.last;
  }
}

TEST(CountDropoutsTest, TakesAMarkerThatIsNeverSeen) {
  EXPECT_EQ(CountDropouts({}, 0, {0, 9}), 10);
  EXPECT_EQ(CountDropouts(std::vector<FrameGap>{{0, 10}}, 10, {2, 4}), 3);
}

}  // namespace
}  // namespace orvane
