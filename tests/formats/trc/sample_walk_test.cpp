#include "formats/trc/sample_walk.h"

#include <gtest/gtest.h>

#include "tests/formats/trc/samples.h"

namespace orvane {
namespace {

test::Sample NextOf(TRCSampleWalk& walk) {
  TRCPosition position;
  if (!walk.Next(position)) return std::nullopt;
  return {{position.x, position.y, position.z}};
}

void ExpectWalkOver(const TRCMarker& marker) {
  TRCSampleWalk walk(marker);
  for (std::size_t index = 0; index < marker.SampleCount() + 2; ++index) {
    EXPECT_EQ(NextOf(walk), test::SampleAt(marker, index)) << index;
  }
}

TEST(TRCSampleWalkTest, MeetsEverySampleOfMarkersWithGaps) {
  for (const char* pattern : {"", "x", "-", "xxx", "---", "-x", "x-", "x-x--xx---x", "--x-x--"}) {
    SCOPED_TRACE(pattern);
    TRCMarker marker("Head");
    double value = 0;
    for (const char* sample = pattern; *sample != '\0'; ++sample) {
      ++value;
      if (*sample == 'x') {
        marker.AppendPosition(value, -value, value / 2);
      } else {
        marker.AppendDropout();
      }
    }
    ExpectWalkOver(marker);
  }
}

TEST(TRCSampleWalkTest, MeetsSamplesThatWereSetInAGap) {
  TRCMarker marker("Head");
  marker.AppendDropouts(5);
  ASSERT_TRUE(marker.SetSample(2, 1, 2, 3));
  ASSERT_TRUE(marker.SetSample(0, 4, 5, 6));
  ExpectWalkOver(marker);
}

TEST(TRCSampleWalkTest, TakesScaledDropoutsForPresent) {
  TRCMarker marker("Head");
  marker.AppendDropout();
  marker.AppendPosition(1, 2, 3);
  marker.Scale(2);
  marker.AppendDropout();
  TRCSampleWalk walk(marker);
  EXPECT_EQ(NextOf(walk), (test::Sample{{0, 0, 0}}));
  EXPECT_EQ(NextOf(walk), (test::Sample{{2, 4, 6}}));
  EXPECT_EQ(NextOf(walk), std::nullopt);
  EXPECT_EQ(NextOf(walk), std::nullopt);
}

}  // namespace
}  // namespace orvane
