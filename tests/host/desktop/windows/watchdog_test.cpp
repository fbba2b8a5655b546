#include "host/desktop/windows/watchdog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/program.h"

namespace host {
namespace {

using testing::HasSubstr;

TEST(WatchdogTest, EndsAProgramWhoseDialogNobodyAnswersAndTellsWhatItSays) {
  test::ProgramRun run;
  run.command = {ORVANE_BINARY_DIR "/bin/unanswered_dialog"};
  run.environment = {"SKELDER_WATCHDOG_SECONDS=1"};
  const test::ProgramResult result = test::RunProgram(run);
  EXPECT_EQ(result.status, kWatchdogStatus);
  EXPECT_THAT(result.error, HasSubstr("Nobody has answered the dialog \"A Question\""));
  EXPECT_THAT(result.error, HasSubstr("Is anybody there?"));
  EXPECT_THAT(result.error, HasSubstr("Yes"));
}

}  // namespace
}  // namespace host
