#include "plugin/exchange/host_session.h"

#include <gtest/gtest.h>

#include <string>

#include "host/application/application.h"
#include "tests/support/hooked_interface.h"

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

TEST(ProgressBarTest, IsOpenAsLongAsItLivesAndNeverStopsTheWork) {
  host::Application application;
  {
    const OpenProgressBar bar(application.plugin_interface(), "Working");
    EXPECT_TRUE(application.progress().IsOpen());
    EXPECT_TRUE(application.progress().HoldsCallback());
    EXPECT_EQ(application.progress().Title(), "Working");
    EXPECT_TRUE(application.progress().Events().front().visible);
    EXPECT_TRUE(application.progress().Update(50, true, nullptr));
  }
  EXPECT_FALSE(application.progress().IsOpen());
}

TEST(ProgressBarTest, IsClosedWhateverTheHostThrows) {
  host::Application application;
  test::HookedInterface host(application.plugin_interface());
  host.after = [](const std::string& operation) {
    if (operation == "ProgressEnd") throw 1;
  };
  { const OpenProgressBar bar(host, "Working"); }
  EXPECT_FALSE(application.progress().IsOpen());
}

}  // namespace
}  // namespace orvane
