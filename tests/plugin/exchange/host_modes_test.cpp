#include "plugin/exchange/host_modes.h"

#include <gtest/gtest.h>

#include "host/application/application.h"

namespace orvane {
namespace {

TEST(HostModesTest, AreSuspendedAndPlaybackStops) {
  host::Application application;
  host::AnimationState& animation = application.scene().Animation();
  animation.AnimateMode().Set(true);
  animation.SetKeyMode().Set(true);
  application.StartPlayback();

  SuspendHostModes(application.plugin_interface());
  EXPECT_FALSE(animation.AnimateMode().IsOn());
  EXPECT_FALSE(animation.SetKeyMode().IsOn());
  EXPECT_FALSE(application.IsPlaybackRunning());

  ResumeHostModes();
  EXPECT_TRUE(animation.AnimateMode().IsOn());
  EXPECT_TRUE(animation.SetKeyMode().IsOn());
  EXPECT_FALSE(application.IsPlaybackRunning());
  EXPECT_EQ(animation.AnimateMode().SuspendDepth() + animation.SetKeyMode().SuspendDepth(), 0U);
}

}  // namespace
}  // namespace orvane
