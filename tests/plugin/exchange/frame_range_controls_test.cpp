#include "plugin/exchange/frame_range_controls.h"

#include <gtest/gtest.h>

#include "tests/support/fake_dialog.h"

namespace orvane {
namespace {

constexpr int kFrom = 1065;
constexpr int kTo = 1066;
constexpr int kOffset = 1089;

class FrameRangeControlsTest : public testing::Test {
 protected:
  std::string Read(const std::string& from, const std::string& to, const std::string& offset) {
    dialog_[kFrom].text = from;
    dialog_[kTo].text = to;
    dialog_[kOffset].text = offset;
    return ReadFrameRange(dialog_, range_);
  }

  test::FakeDialog dialog_;
  std::int32_t start_ = 1;
  std::int32_t end_ = 100;
  std::int32_t offset_ = -5;
  FrameRange range_{start_, end_, offset_};
};

TEST_F(FrameRangeControlsTest, ShowTheNumbersOfTheRecord) {
  FillFrameRange(dialog_, range_);
  EXPECT_EQ(dialog_[kFrom].text, "1");
  EXPECT_EQ(dialog_[kTo].text, "100");
  EXPECT_EQ(dialog_[kOffset].text, "-5");
}

TEST_F(FrameRangeControlsTest, AreEnabledWithoutTheOffset) {
  EnableFrameRange(dialog_, false);
  EXPECT_FALSE(dialog_[kFrom].enabled);
  EXPECT_FALSE(dialog_[kTo].enabled);
  EXPECT_TRUE(dialog_[kOffset].enabled);
}

TEST_F(FrameRangeControlsTest, AreTakenOver) {
  EXPECT_EQ(Read("10", "20x", " 7"), "");
  EXPECT_EQ(start_, 10);
  EXPECT_EQ(end_, 20);
  EXPECT_EQ(offset_, 7);
}

TEST_F(FrameRangeControlsTest, AStartBelowItsBoundIsPutBackAndEndsIt) {
  EXPECT_EQ(Read("0", "20", "7"), "Please choose a start frame equal to or greater than 1.");
  EXPECT_EQ(dialog_[kFrom].text, "1");
  EXPECT_EQ(end_, 100);
  EXPECT_EQ(offset_, -5);
}

TEST_F(FrameRangeControlsTest, AnEndAboveItsBoundIsPutBackAndTheStartStaysTaken) {
  EXPECT_EQ(Read("10", "101", "7"), "Please choose an end frame less than or equal to 100.");
  EXPECT_EQ(dialog_[kTo].text, "100");
  EXPECT_EQ(start_, 10);
  EXPECT_EQ(offset_, -5);
  EXPECT_EQ(Read("9", "100", "7"), "Please choose a start frame equal to or greater than 10.");
}

TEST_F(FrameRangeControlsTest, AnEndBeforeTheStartIsForTheOrderToTell) {
  EXPECT_EQ(Read("20", "19", "0"), "");
  EXPECT_EQ(CheckFrameOrder(range_),
            "Please choose a start frame that is less than the end frame.");
  start_ = 19;
  EXPECT_EQ(CheckFrameOrder(range_), "");
}

}  // namespace
}  // namespace orvane
