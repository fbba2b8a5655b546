#include "inspect/counts/dropouts.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// Positions in the frames 0, 1, 4, 5 and 7.
TRCMarker Fickle() {
  TRCMarker marker("Toe");
  marker.AppendPosition(0, 0, 0);
  marker.AppendPosition(0, 0, 0);
  marker.AppendDropouts(2);
  marker.AppendPosition(1, 0, 0);
  marker.AppendPosition(1, 0, 0);
  marker.AppendDropout();
  marker.AppendPosition(2, 0, 0);
  marker.AppendDropout();
  return marker;
}

TEST(CountDropoutsTest, CountsThoseOfTheFramesAskedFor) {
  const struct {
    FrameSpan frames;
    std::int64_t expected;
  } cases[] = {
      {{0, 8}, 4}, {{0, -1}, 0}, {{0, 1}, 0}, {{0, 2}, 1},  {{2, 3}, 2},    {{3, 6}, 2},
      {{4, 5}, 0}, {{7, 7}, 0},  {{8, 8}, 1}, {{0, 11}, 7}, {{20, 29}, 10}, {{5, 4}, 0},
  };
  for (const auto& example : cases) {
    EXPECT_EQ(CountDropouts(Fickle(), example.frames), example.expected)
        << example.frames.first << " to " << example.frames.last;
  }
}

TEST(CountDropoutsTest, TakesAMarkerThatIsNeverSeen) {
  EXPECT_EQ(CountDropouts(TRCMarker("Toe"), {0, 9}), 10);
  TRCMarker unseen("Toe");
  unseen.AppendDropouts(10);
  EXPECT_EQ(CountDropouts(unseen, {2, 4}), 3);
}

}  // namespace
}  // namespace orvane
