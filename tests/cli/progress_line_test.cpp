#include "cli/progress_line.h"

#include <gtest/gtest.h>

namespace {

using cli::ClockTime;
using std::chrono::seconds;

TEST(ClockTimeTest, HasMinutesAndHoursWhereThereAreSome) {
  EXPECT_EQ(ClockTime(seconds(0)), "0:00");
  EXPECT_EQ(ClockTime(seconds(7)), "0:07");
  EXPECT_EQ(ClockTime(seconds(75)), "1:15");
  EXPECT_EQ(ClockTime(seconds(3599)), "59:59");
  EXPECT_EQ(ClockTime(seconds(3600)), "1:00:00");
  EXPECT_EQ(ClockTime(seconds(36125)), "10:02:05");
}

}  // namespace
