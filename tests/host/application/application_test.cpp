#include "host/application/application.h"

#include <gtest/gtest.h>

#include "sdk/core/animation.h"
#include "sdk/skelderutil/custom_edit.h"

namespace {

using host::Application;

TEST(ApplicationTest, StartsWithANewScene) {
  Application application;
  const host::AnimationState& animation = application.scene().Animation();
  EXPECT_EQ(animation.FrameRate(), 30);
  EXPECT_EQ(animation.TicksPerFrame(), 160);
  EXPECT_EQ(animation.Range(), Interval(0, 16000));
  EXPECT_EQ(animation.Time(), 0);
  EXPECT_FALSE(animation.AnimateMode().IsOn());
  EXPECT_FALSE(animation.SetKeyMode().IsOn());
  EXPECT_EQ(application.scene().MillimetersPerUnit(), 1.0);
  EXPECT_EQ(application.scene().NodeCount(), 0U);
  EXPECT_FALSE(application.IsPlaybackRunning());
  EXPECT_FALSE(application.progress().IsOpen());
  EXPECT_EQ(application.PendingMessageCalls(), 0U);
}

TEST(ApplicationTest, IsCurrentUntilItEnds) {
  EXPECT_EQ(Application::Current(), nullptr);
  {
    Application outer;
    EXPECT_EQ(Application::Current(), &outer);
    {
      Application inner;
      EXPECT_EQ(Application::Current(), &inner);
      SetFrameRate(25);
      EXPECT_EQ(inner.scene().Animation().FrameRate(), 25);
      EXPECT_EQ(outer.scene().Animation().FrameRate(), 30);
    }
    EXPECT_EQ(Application::Current(), &outer);
  }
  EXPECT_EQ(Application::Current(), nullptr);
}

TEST(ApplicationTest, HasNoCustomEditControls) {
  Application application;
  EXPECT_EQ(GetICustEdit(application.main_window()), nullptr);
  ReleaseICustEdit(nullptr);
}

}  // namespace
