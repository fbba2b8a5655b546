#include "tests/cli/convert/convert_test.h"

// Conversions of files whose heights lie along Z.

namespace {

using test::ConvertTest;
using test::ProgramResult;
using test::Slashed;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class ConvertUpTest : public ConvertTest {
 protected:
  // The same motion with heights along Y, and along Z.
  static std::string AlongY() {
    return TrcText{.markers = {"Head", "Toe"}, .frames = {{"1\t1700.25\t-2", "4\t6\t-5"}}}.Text();
  }
  static std::string AlongZ() {
    return TrcText{.markers = {"Head", "Toe"}, .frames = {{"1\t2\t1700.25", "4\t5\t6"}}}.Text();
  }

  // Without the lines that tell names and times.
  std::string Points(const std::string& name) const {
    const std::string text = ReadText(name);
    return text.substr(text.find("$Points"));
  }
};

TEST_F(ConvertUpTest, MakeWhatTheTurnedFileMakes) {
  Write("y.trc", AlongY());
  Write("z.trc", AlongZ());
  ASSERT_EQ(Convert({"y.trc"}).status, 0);
  const ProgramResult result = Convert({"z.trc", "--up", "z"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(Points("z.bvk"), Points("y.bvk"));
  EXPECT_THAT(Names(), ElementsAre("y.bvk", "y.trc", "z.bvk", "z.trc"));
  EXPECT_THAT(ReadText("z.bvk"), HasSubstr("$Filename   z\n"));
}

TEST_F(ConvertUpTest, WorksOnManyAndNamesTheUsersFiles) {
  Write("y.trc", AlongY());
  ASSERT_EQ(Convert({"y.trc"}).status, 0);
  MakeFolder("takes");
  Write("takes/a.trc", AlongZ());
  Write("takes/b.trc", AlongZ());
  Write("takes/c.trc",
        TrcText{.markers = {"Head"}, .frames = {{"1\t2\t" + std::string(10'300, '3')}}}.Text());
  const ProgramResult result =
      Convert({"takes/a.trc", "takes/b.trc", "takes/c.trc", "--up", "z", "--no-report"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("orvane: takes/c.trc: --up z cannot turn it: it has lines "
                                      "that are read in pieces\n"));
  EXPECT_THAT(result.output, HasSubstr("2 of 3 converted\n"));
  EXPECT_EQ(Points("takes/a.bvk"), Points("y.bvk"));
  EXPECT_EQ(Points("takes/b.bvk"), Points("y.bvk"));
  const std::string log = ReadText("takes/ConvertBVKLog.txt");
  EXPECT_THAT(Slashed(log), HasSubstr(Slashed(Absolute("takes/a.trc"))));
  EXPECT_THAT(log, Not(HasSubstr("turned")));
}

}  // namespace
