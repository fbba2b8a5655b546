#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"

namespace {

using test::PosixRun;
using test::ProgramResult;
using testing::AllOf;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class TerminalTest : public test::OrvaneTest {
 protected:
  // An import that takes some tenths of a second.
  PosixRun SlowImport() const {
    Write("slow.htr", test::SmallMotion());
    return {Command({"import", "slow.htr", "-o", "scene.glb", "--module", test::HurriedModule()})};
  }
};

constexpr char kWipe[] = "\r\033[K";

TEST_F(TerminalTest, ProgressIsALineWithPercentAndTimeLeftThatIsWipedAtTheEnd) {
  PosixRun run = SlowImport();
  run.error_is_terminal = true;
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error,
              AllOf(StartsWith(std::string(kWipe) + "Importing slow.htr  "),
                    testing::ContainsRegex("Importing slow.htr  50 %, 0:[0-9][0-9] left"),
                    EndsWith(kWipe)));
}

TEST_F(TerminalTest, QuietShowsNoProgressAndNoSummary) {
  PosixRun run = SlowImport();
  run.command.push_back("--quiet");
  run.error_is_terminal = true;
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, IsEmpty());
}

TEST_F(TerminalTest, APipeGetsNoProgress) {
  const ProgramResult result = RunProgram(SlowImport());
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, Not(IsEmpty()));
}

TEST_F(TerminalTest, MessagesAreColouredUnlessTheUserWantsNoColour) {
  PosixRun run{Command({"info", "walk.htr"})};
  run.error_is_terminal = true;
  EXPECT_EQ(RunProgram(run).error,
            "\033[1;31morvane:\033[0m walk.htr: No such file or directory\r\n");
  run.environment.push_back("NO_COLOR=1");
  EXPECT_EQ(RunProgram(run).error, "orvane: walk.htr: No such file or directory\r\n");
  run.environment.back() = "NO_COLOR=";
  EXPECT_THAT(RunProgram(run).error, StartsWith("\033[1;31m"));
}

}  // namespace
