#include "plugin/exchange/progress_bar.h"

#include <gtest/gtest.h>

#include <string>

#include "host/application/application.h"
#include "tests/support/hooked_interface.h"

namespace orvane {
namespace {

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
