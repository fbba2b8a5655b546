#include "host/animation/animation_state.h"

#include <gtest/gtest.h>

#include <limits>

namespace host {
namespace {

TEST(AnimationState, IsAsInANewScene) {
  const AnimationState state;
  EXPECT_EQ(state.FrameRate(), 30);
  EXPECT_EQ(state.TicksPerFrame(), 160);
  EXPECT_EQ(state.Range(), Interval(0, 16000));
  EXPECT_EQ(state.Time(), 0);
  EXPECT_FALSE(state.AnimateMode().IsOn());
  EXPECT_FALSE(state.SetKeyMode().IsOn());
}

TEST(AnimationState, HasTicksPerFrameInWholeNumbers) {
  struct Case {
    int frame_rate;
    int held;
    int ticks;
  };
  const Case cases[] = {
      {1, 1, 4800},
      {24, 24, 200},
      {25, 25, 192},
      {30, 30, 160},
      {60, 60, 80},
      {120, 120, 40},
      {7, 7, 685},
      {2400, 2400, 2},
      {2401, 2401, 1},
      {4800, 4800, 1},
      {4801, 4800, 1},
      {0, 1, 4800},
      {-30, 1, 4800},
      {1000000, 4800, 1},
      {std::numeric_limits<int>::min(), 1, 4800},
      {std::numeric_limits<int>::max(), 4800, 1},
  };
  for (const Case& test_case : cases) {
    SCOPED_TRACE(test_case.frame_rate);
    AnimationState state;
    state.SetFrameRate(test_case.frame_rate);
    EXPECT_EQ(state.FrameRate(), test_case.held);
    EXPECT_EQ(state.TicksPerFrame(), test_case.ticks);
    EXPECT_EQ(TicksPerFrame(test_case.frame_rate), test_case.ticks);
  }
}

TEST(AnimationState, KeepsItsTicksWhenTheFrameRateChanges) {
  AnimationState state;
  state.SetTime(-800);
  state.SetRange({160, 320});
  state.SetFrameRate(60);
  EXPECT_EQ(state.Time(), -800);
  EXPECT_EQ(state.Range(), Interval(160, 320));
}

TEST(AnimationState, SuspendsItsModesIndependently) {
  AnimationState state;
  state.AnimateMode().Suspend();
  EXPECT_EQ(state.AnimateMode().SuspendDepth(), 1U);
  EXPECT_EQ(state.SetKeyMode().SuspendDepth(), 0U);
}

}  // namespace
}  // namespace host
