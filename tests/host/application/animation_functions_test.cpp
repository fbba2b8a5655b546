#include <gtest/gtest.h>

#include "host/application/application.h"
#include "sdk/core/animation.h"
#include "sdk/core/units.h"

namespace {

using host::Application;

class AnimationFunctionsTest : public testing::Test {
 protected:
  host::AnimationState& Animation() { return application_.scene().Animation(); }

  Application application_;
};

TEST_F(AnimationFunctionsTest, CountSuspensionsOfAnimateModeAndRestoreIt) {
  AnimateOn();
  EXPECT_TRUE(Animation().AnimateMode().IsOn());
  SuspendAnimate();
  EXPECT_FALSE(Animation().AnimateMode().IsOn());
  SuspendAnimate();
  AnimateOn();
  EXPECT_TRUE(Animation().AnimateMode().IsOn());
  EXPECT_EQ(Animation().AnimateMode().SuspendDepth(), 2U);
  AnimateOff();
  ResumeAnimate();
  EXPECT_EQ(Animation().AnimateMode().SuspendDepth(), 1U);
  ResumeAnimate();
  EXPECT_TRUE(Animation().AnimateMode().IsOn());
  EXPECT_EQ(Animation().AnimateMode().SuspendDepth(), 0U);
  EXPECT_EQ(Animation().SetKeyMode().SuspendDepth(), 0U);
}

TEST_F(AnimationFunctionsTest, CountSuspensionsOfSetKeyModeAndRestoreIt) {
  Animation().SetKeyMode().Set(true);
  SuspendSetKeyMode();
  EXPECT_FALSE(Animation().SetKeyMode().IsOn());
  EXPECT_EQ(Animation().SetKeyMode().SuspendDepth(), 1U);
  EXPECT_EQ(Animation().AnimateMode().SuspendDepth(), 0U);
  ResumeSetKeyMode();
  EXPECT_TRUE(Animation().SetKeyMode().IsOn());
  ResumeSetKeyMode();
  EXPECT_EQ(Animation().SetKeyMode().UnmatchedResumes(), 1U);
}

TEST_F(AnimationFunctionsTest, HoldTheFrameRateToItsBoundsAndTicksToWholeNumbers) {
  struct Case {
    int rate;
    int held;
    int ticks_per_frame;
  };
  for (const Case& c :
       {Case{30, 30, 160}, Case{60, 60, 80}, Case{120, 120, 40}, Case{7, 7, 685},
        Case{1000, 1000, 4}, Case{2401, 2401, 1}, Case{1, 1, 4800}, Case{0, 1, 4800},
        Case{-5, 1, 4800}, Case{4800, 4800, 1}, Case{4801, 4800, 1}, Case{1000000, 4800, 1}}) {
    SetFrameRate(c.rate);
    EXPECT_EQ(Animation().FrameRate(), c.held) << c.rate;
    EXPECT_EQ(GetTicksPerFrame(), c.ticks_per_frame) << c.rate;
  }
}

TEST_F(AnimationFunctionsTest, KeepTheRangeInTicksWhenTheFrameRateChanges) {
  SetFrameRate(60);
  EXPECT_EQ(Animation().Range(), Interval(0, 16000));
}

TEST_F(AnimationFunctionsTest, GiveMillimetersPerSystemUnit) {
  EXPECT_EQ(GetMasterScale(kUnitTypeMillimeters), 1.0);
  application_.scene().SetMillimetersPerUnit(25.4);
  EXPECT_EQ(GetMasterScale(3), 25.4);
  EXPECT_EQ(GetMasterScale(2), 1.0);
}

TEST(AnimationFunctionsWithoutApplicationTest, DoNothingAndAnswerAsANewApplication) {
  SuspendAnimate();
  ResumeAnimate();
  AnimateOn();
  AnimateOff();
  SuspendSetKeyMode();
  ResumeSetKeyMode();
  SetFrameRate(60);
  EXPECT_EQ(GetTicksPerFrame(), 160);
  EXPECT_EQ(GetMasterScale(kUnitTypeMillimeters), 1.0);
}

}  // namespace
