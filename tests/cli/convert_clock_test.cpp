#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// SOURCE_DATE_EPOCH sets the clock that conversions tell the time by.

namespace {

using test::ProgramResult;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class ConvertClockTest : public test::OrvaneTest {
 protected:
  // Converts files of two folders, each folder in a process of its own, with the clock set to
  // `epoch`.
  void Convert(const std::string& epoch) const {
    const std::string take = test::TrcText{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}}.Text();
    std::filesystem::create_directory(folder_.Path() / "b");
    for (const char* name : {"a.trc", "a2.trc", "b/b.trc"}) Write(name, take);
    test::ProgramRun run =
        Command({"convert", "a.trc", "a2.trc", "b/b.trc", "--jobs", "2", "--force"});
    run.environment.emplace_back("SOURCE_DATE_EPOCH=" + epoch);
    const ProgramResult result = RunProgram(run);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
  }

  std::string TextOf(const std::string& name) const {
    return test::ReadTextFile(folder_.File(name));
  }
};

TEST_F(ConvertClockTest, TellsTheTimeOfTheClock) {
  Convert("741476948");
  for (const char* name : {"a.bvk", "a2.bvk", "b/b.bvk"}) {
    EXPECT_THAT(TextOf(name), HasSubstr("$DateTime   Wed Jun 30 21:49:08 1993\n\n")) << name;
  }
  EXPECT_THAT(TextOf("ConvertBVKLog.txt"), HasSubstr("Log\nWed Jun 30 21:49:08 1993\nProcessing"));
  Convert("-1");
  EXPECT_THAT(TextOf("a.bvk"), HasSubstr("$DateTime   Wed Dec 31 23:59:59 1969\n\n"));
}

TEST_F(ConvertClockTest, TellsTheTimeOfTheSystemWhenThatIsNoNumberOfSeconds) {
  for (const char* epoch : {"", "soon", "12 ", " 12", "+12", "0x12", "12.5", "99999999999999999999",
                            "9223372036854775807"}) {
    Convert(epoch);
    EXPECT_THAT(TextOf("a.bvk"), Not(AllOf(HasSubstr("$DateTime"), HasSubstr(" 1970\n")))) << epoch;
  }
}

}  // namespace
