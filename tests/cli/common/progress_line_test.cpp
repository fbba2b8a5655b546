#include "cli/common/progress_line.h"

#include <gtest/gtest.h>

namespace {

using cli::ClockTime;
using cli::FittingTitle;
using std::chrono::seconds;

TEST(ClockTimeTest, HasMinutesAndHoursWhereThereAreSome) {
  EXPECT_EQ(ClockTime(seconds(0)), "0:00");
  EXPECT_EQ(ClockTime(seconds(7)), "0:07");
  EXPECT_EQ(ClockTime(seconds(75)), "1:15");
  EXPECT_EQ(ClockTime(seconds(3599)), "59:59");
  EXPECT_EQ(ClockTime(seconds(3600)), "1:00:00");
  EXPECT_EQ(ClockTime(seconds(36125)), "10:02:05");
}

// Percent and time take 22 columns at most; the last column stays empty.
TEST(FittingTitleTest, ATitleThatFitsIsWhole) {
  EXPECT_EQ(FittingTitle("Importing walk.htr", 18 + 22 + 1), "Importing walk.htr");
}

TEST(FittingTitleTest, ALongerOneLosesItsStart) {
  EXPECT_EQ(FittingTitle("Importing walk.htr", 17 + 22 + 1), "...rting walk.htr");
}

TEST(FittingTitleTest, ATerminalOfUnknownWidthGetsAllOfIt) {
  EXPECT_EQ(FittingTitle("Importing walk.htr", 0), "Importing walk.htr");
}

TEST(FittingTitleTest, WithoutRoomThereIsNone) {
  EXPECT_EQ(FittingTitle("Importing walk.htr", 3 + 22 + 1), "");
  EXPECT_EQ(FittingTitle("Importing walk.htr", 5), "");
}

TEST(FittingTitleTest, ACharacterOfSeveralBytesIsOneColumnAndStaysWhole) {
  EXPECT_EQ(FittingTitle("Importing \u00e9\u00e9.htr", 16 + 22 + 1), "Importing \u00e9\u00e9.htr");
  EXPECT_EQ(FittingTitle("Importing \u00e9\u00e9.htr", 8 + 22 + 1), "...\u00e9.htr");
}

}  // namespace
