#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// SOURCE_DATE_EPOCH sets the clock that conversions tell the time by.

namespace {

using test::ProgramResult;
using testing::HasSubstr;
using testing::Not;

class ConvertClockTest : public test::OrvaneTest {
 protected:
  // Converts the files `names`, one or more, with the clock set to `epoch`.
  void Convert(const std::vector<std::string>& names, const std::string& epoch) const {
    test::ProgramRun run = Command({"convert", "--jobs", "2", "--force"});
    for (const std::string& name : names) {
      Write(name, test::TrcText{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}}.Text());
      run.command.push_back(name);
    }
    run.environment.emplace_back("SOURCE_DATE_EPOCH=" + epoch);
    const ProgramResult result = RunProgram(run);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
  }

  std::string TextOf(const std::string& name) const {
    return test::ReadTextFile(folder_.File(name));
  }
};

// Each folder is a process of its own.
TEST_F(ConvertClockTest, TellsTheTimeOfTheClock) {
  std::filesystem::create_directory(folder_.Path() / "b");
  Convert({"a.trc", "a2.trc", "b/b.trc"}, "741476948");
  for (const char* name : {"a.bvk", "a2.bvk", "b/b.bvk"}) {
    EXPECT_THAT(TextOf(name), HasSubstr("$DateTime   Wed Jun 30 21:49:08 1993\n\n")) << name;
  }
  EXPECT_THAT(TextOf("ConvertBVKLog.txt"), HasSubstr("Log\nWed Jun 30 21:49:08 1993\nProcessing"));
}

TEST_F(ConvertClockTest, TakesMomentsBefore1970) {
  Convert({"a.trc"}, "-1");
  EXPECT_THAT(TextOf("a.bvk"), HasSubstr("$DateTime   Wed Dec 31 23:59:59 1969\n\n"));
}

TEST_F(ConvertClockTest, TellsTheTimeOfTheSystemWhenThatIsNoNumberOfSeconds) {
  for (const char* epoch : {"", "soon", "+12", "12 ", "12.5", "99999999999999999999"}) {
    Convert({"a.trc"}, epoch);
    EXPECT_THAT(TextOf("a.bvk"), Not(HasSubstr(" 1970\n"))) << epoch;
  }
}

}  // namespace
