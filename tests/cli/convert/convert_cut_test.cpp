#include "tests/cli/convert/convert_test.h"

// Conversions of some frames, cut out of the files before.

namespace {

using test::ConvertTest;
using test::ProgramResult;
using test::Slashed;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class ConvertCutTest : public ConvertTest {
 protected:
  static std::string Take(std::int64_t first, int announced = -1) {
    return TrcText{.markers = {"Head"},
                   .frames = {{"1\t2\t3"}, {"4\t5\t6"}, {"7\t8\t9"}},
                   .first_frame = first,
                   .frame_count = announced}
        .Text();
  }

  // One without markers, and one that ends in its header.
  void WriteBare() const {
    const std::string bare = TrcText{.markers = {}, .first_frame = 11, .marker_count = 1}.Text();
    Write("bare.trc", bare + "11\t0\n12\t0\n13\t0\n");
    Write("short.trc", bare.substr(0, bare.find("DataRate")));
  }

  // Without the lines that tell names and times.
  std::string Points(const std::string& name) const {
    const std::string text = ReadText(name);
    return text.substr(text.find("$Points"));
  }
};

TEST_F(ConvertCutTest, MakeWhatAFileOfTheseFramesMakes) {
  Write("whole.trc", Take(228, 900));
  Write("part.trc",
        TrcText{.markers = {"Head"}, .frames = {{"4\t5\t6"}, {"7\t8\t9"}}, .first_frame = 229}
            .Text());
  ASSERT_EQ(Convert({"part.trc"}).status, 0);
  const ProgramResult result = Convert({"whole.trc", "--cut", "229:230"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(Points("whole.bvk"), Points("part.bvk"));
  EXPECT_THAT(ReadText("whole.bvk"), HasSubstr("$Filename   whole\n"));
  EXPECT_THAT(Names(), ElementsAre("part.bvk", "part.trc", "whole.bvk", "whole.trc"));
}

TEST_F(ConvertCutTest, WorksOnManyByTheNumbersOfEach) {
  MakeFolder("takes");
  Write("takes/a.trc", Take(1));
  Write("takes/b.trc", Take(2));
  Write("takes/c.trc", Take(100));
  const ProgramResult result =
      Convert({"takes/a.trc", "takes/b.trc", "takes/c.trc", "--cut", "3:4"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              HasSubstr("orvane: takes/a.trc: warning: --cut asks for 2 frames, and the file "
                        "lacks 1 of them. Frame 3 is taken. [cut-range-partly]\n"));
  EXPECT_THAT(result.error, HasSubstr("orvane: takes/c.trc: --cut asks for the frames 3 to 4, and "
                                      "the file has 100 to 102 [cut-range-outside]\n"));
  EXPECT_THAT(result.error, Not(HasSubstr("Nothing is made of the file.")));
  EXPECT_THAT(result.output, HasSubstr("2 of 3 converted\n"));
  EXPECT_FALSE(Exists("takes/c.bvk"));
  const std::string log = ReadText("takes/ConvertBVKLog.txt");
  EXPECT_THAT(Slashed(log), HasSubstr(Slashed(Absolute("takes/a.trc"))));
  EXPECT_THAT(log, Not(HasSubstr("copies")));
}

TEST_F(ConvertCutTest, WorksWithUpAndInAPreview) {
  Write("z.trc", TrcText{.markers = {"Head"}, .frames = {{"9\t9\t9"}, {"1\t2\t3"}}}.Text());
  Write("y.trc", TrcText{.markers = {"Head"}, .frames = {{"1\t3\t-2"}}, .first_frame = 2}.Text());
  ASSERT_EQ(Convert({"y.trc"}).status, 0);
  EXPECT_EQ(Convert({"z.trc", "--cut", "2:9", "--up", "z", "--dry-run"}).status, 0);
  EXPECT_EQ(Convert({"z.trc", "--cut", "3:9", "--dry-run"}).status, 1);
  ASSERT_EQ(Convert({"z.trc", "--cut", "2:2", "--up", "z"}).status, 0);
  EXPECT_EQ(Points("z.bvk"), Points("y.bvk"));
}

TEST_F(ConvertCutTest, KeepsNothingButTheseFramesOfWhatIsEmpty) {
  WriteBare();
  Write("take.trc", Take(11));
  Write("nobody.mnm", "LFHD\tNobody\n");
  const std::vector<std::vector<std::string>> rows = {{"bare.trc"},
                                                      {"take.trc", "--mapping", "nobody.mnm"}};
  for (const auto& row : rows) {
    for (const std::string wish : {"--keep-broken", "--allow=empty"}) {
      std::vector<std::string> arguments = row;
      arguments.insert(arguments.end(), {"--cut", "12:13", "--force", wish});
      const ProgramResult result = Convert(arguments);
      EXPECT_EQ(result.status, wish == "--keep-broken" ? 1 : 0) << row[0];
      EXPECT_THAT(result.error, Not(HasSubstr("stands behind"))) << row[0];
      const std::string made = ReadText(row[0].substr(0, 4) + ".bvk");
      EXPECT_THAT(made, HasSubstr("$FirstFrame 12\n$LastFrame 13\n$NumFrames 2\n$NumMarkers 0\n"))
          << row[0];
    }
  }
}

TEST_F(ConvertCutTest, SaysOfFilesWithoutMarkersWhatIsSaidOfTheWhole) {
  WriteBare();
  for (const std::string file : {"bare.trc", "short.trc"}) {
    for (const std::string flag : {"--force", "--dry-run", "--no-report"}) {
      const ProgramResult whole = Convert({file, flag});
      const ProgramResult cut = Convert({file, flag, "--cut", "12:12"});
      EXPECT_EQ(cut.error, whole.error) << flag;
      EXPECT_EQ(cut.output, whole.output) << flag;
      EXPECT_EQ(cut.status, 1);
    }
  }
}

TEST_F(ConvertCutTest, ADryRunTellsWhichFramesAreTaken) {
  Write("whole.trc", Take(228));
  EXPECT_EQ(Convert({"whole.trc", "--dry-run", "--cut", "229:400"}).output,
            "whole.trc -> whole.bvk (planned)\n  take    frames 229 to 230\n  keep    Head\n");
  EXPECT_THAT(Convert({"whole.trc", "--dry-run", "--cut", "229:229"}).output,
              HasSubstr("\n  take    frame 229\n"));
}

TEST_F(ConvertCutTest, IsForeseenAsItComes) {
  std::string lines = TrcText{.markers = {"Head"}, .first_frame = 11}.Text();
  const std::string much(6000, '\t');
  lines += "11\t0\t1\t2\t3" + much + much + "\n12\t0\t4\t5\t6\n13\t0\t7\t8\t9\n";
  Write("pieces.trc", lines);
  for (const std::string flag : {"--dry-run", "--force"}) {
    const ProgramResult cut = Convert({"pieces.trc", flag, "--no-report", "--cut", "11:11"});
    EXPECT_EQ(cut.error,
              "orvane: pieces.trc: --cut cannot cut it: it has lines that are read in pieces\n"
              "  A line has 10238 bytes at the most.\n");
    EXPECT_THAT(cut.output, HasSubstr("refused"));
    EXPECT_EQ(cut.status, 1);
    const ProgramResult up = Convert({"pieces.trc", flag, "--no-report", "--up", "z"});
    EXPECT_THAT(up.error, HasSubstr("--up z cannot turn it"));
    EXPECT_EQ(up.status, 1);
  }
  EXPECT_FALSE(Exists("pieces.bvk"));
}

}  // namespace
