#include "plugin/exchange/progress_bar.h"

#include <gtest/gtest.h>

#include "host/application/application.h"

namespace orvane {
namespace {

TEST(ProgressBarTest, IsOpenAsLongAsItLivesAndNeverStopsTheWork) {
  host::Application application;
  {
    const ProgressBar bar(application.plugin_interface(), "Working");
    EXPECT_TRUE(application.progress().IsOpen());
    EXPECT_TRUE(application.progress().HoldsCallback());
    EXPECT_EQ(application.progress().Title(), "Working");
    EXPECT_TRUE(application.progress().Events().front().visible);
    EXPECT_TRUE(application.progress().Update(50, true, nullptr));
  }
  EXPECT_FALSE(application.progress().IsOpen());
}

}  // namespace
}  // namespace orvane
