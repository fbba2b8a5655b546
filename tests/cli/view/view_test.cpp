#include "tests/cli/orvane_test.h"
#include "tests/cli/view/page_takes.h"

namespace {

using test::PageTake;
using test::ProgramResult;
using test::SmallMotion;
using test::TakesIn;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kMarkers =
    "PathFileType\t4\t(X/Y/Z)\ttake.trc\n"
    "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
    "OrigNumFrames\n"
    "60\t60\t1\t1\tmm\t60\t1\t1\n"
    "Frame#\tTime\tTop\t\t\n\t\tX1\tY1\tZ1\n\n"
    "1\t0\t1\t2\t3\n";

class ViewTest : public test::OrvaneTest {
 protected:
  ViewTest() {
    Write("walk.htr", SmallMotion());
    Write("take.trc", kMarkers);
  }

  ProgramResult View(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "view");
    arguments.emplace_back("--no-open");
    return Orvane(arguments);
  }

  std::string Place(const std::string& name) const {
    return (folder_.Path() / name).make_preferred().string();
  }

  void ExpectNoPage(const ProgramResult& result, int status, const std::string& error) const {
    EXPECT_EQ(result.status, status);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, "orvane: " + error);
    EXPECT_THAT(Names(), ElementsAre("take.trc", "walk.htr"));
  }
};

TEST_F(ViewTest, WritesAPageBesideTheTake) {
  const ProgramResult result = View({"walk.htr"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_EQ(result.output, "Wrote walk.html (" + std::to_string(Read("walk.html").size()) +
                               " bytes)\n"
                               "  walk.htr: 2 segments, 3 frames\n"
                               "Open it in any browser: " +
                               Place("walk.html") + "\n");
  EXPECT_THAT(TakesIn(Read("walk.html")), ElementsAre(PageTake{"walk.htr", SmallMotion()}));
}

TEST_F(ViewTest, PutsAllTakesIntoOnePageInTheirOrder) {
  std::filesystem::create_directory(folder_.Path() / "out");
  const ProgramResult result = View({"take.trc", "walk.htr", "-o", "out/both.html"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("  take.trc: 1 marker, 1 frame\n"
                                       "  walk.htr: 2 segments, 3 frames\n"));
  EXPECT_THAT(TakesIn(Read("out/both.html")),
              ElementsAre(PageTake{"take.trc", kMarkers}, PageTake{"walk.htr", SmallMotion()}));
}

TEST_F(ViewTest, LiesBesideTheFirstTakeAndTellsNoFolder) {
  std::filesystem::create_directory(folder_.Path() / "client");
  Write("client/second.htr", SmallMotion());
  EXPECT_EQ(View({"client/second.htr", "walk.htr"}).status, 0);
  EXPECT_THAT(
      TakesIn(Read("client/second.html")),
      ElementsAre(PageTake{"second.htr", SmallMotion()}, PageTake{"walk.htr", SmallMotion()}));
}

TEST_F(ViewTest, TakesANameWithoutItsExtension) {
  EXPECT_EQ(View({"walk"}).status, 0);
  EXPECT_THAT(TakesIn(Read("walk.html")), ElementsAre(PageTake{"walk.htr", SmallMotion()}));
}

TEST_F(ViewTest, ThePageKnowsATakeByAnExtensionOfItsKind) {
  Write("take.txt", kMarkers);
  EXPECT_EQ(View({"take.txt", "--as", "trc"}).status, 0);
  EXPECT_THAT(TakesIn(Read("take.html")), ElementsAre(PageTake{"take.txt.trc", kMarkers}));
}

TEST_F(ViewTest, TakesStandardInput) {
  test::ProgramRun run = Command({"view", "-", "--no-open"});
  run.input_file = folder_.File("take.trc");
  EXPECT_EQ(RunProgram(run).status, 0);
  EXPECT_THAT(TakesIn(Read("stdin.html")), ElementsAre(PageTake{"stdin.trc", kMarkers}));
  run.command.insert(run.command.end(), {"--name", "second.trc"});
  EXPECT_EQ(RunProgram(run).status, 0);
  EXPECT_THAT(TakesIn(Read("second.html")), ElementsAre(PageTake{"second.trc", kMarkers}));
}

TEST_F(ViewTest, KeepsAPageThatIsThereUnlessForced) {
  Write("walk.html", "mine");
  const ProgramResult result = View({"walk.htr"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, HasSubstr("orvane: walk.html: "));
  EXPECT_THAT(result.error, HasSubstr("\n  It is kept; --force replaces it.\n"));
  EXPECT_EQ(Read("walk.html"), "mine");
  EXPECT_EQ(View({"walk.htr", "--force"}).status, 0);
  EXPECT_THAT(TakesIn(Read("walk.html")), ElementsAre(PageTake{"walk.htr", SmallMotion()}));
}

TEST_F(ViewTest, ReplacesNoTake) {
  ExpectNoPage(View({"walk.htr", "take.trc", "-o", "take.trc", "--force"}), 2,
               "take.trc: is an input, and would be an output too\n");
  EXPECT_EQ(Read("take.trc"), kMarkers);
}

TEST_F(ViewTest, TellsWhatIsOddAndShowsIt) {
  const std::string damaged = test::Replaced(SmallMotion(), "NumFrames 3", "NumFrames 9");
  Write("damaged.htr", damaged);
  const ProgramResult result = View({"damaged.htr", "--report", "report.json"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(test::CodesIn(result.error), ElementsAre("htr-frame-count"));
  EXPECT_THAT(TakesIn(Read("damaged.html")), ElementsAre(PageTake{"damaged.htr", damaged}));
  EXPECT_THAT(Read("report.json"), HasSubstr("\"htr-frame-count\""));
}

TEST_F(ViewTest, OfTakesOneOfWhichIsRefusedNothingComes) {
  std::filesystem::create_directory(folder_.Path() / "other");
  Write("other/letter.htr", "Dear client,\n");
  const ProgramResult result = View({"walk.htr", "other/letter.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("orvane: other/letter.htr: "));
  EXPECT_THAT(Names(), ElementsAre("other", "take.trc", "walk.htr"));
}

TEST_F(ViewTest, SaysWhatIsNotThere) {
  ExpectNoPage(View({"nowhere.htr"}), 3, "nowhere.htr: No such file or directory\n");
}

TEST_F(ViewTest, SaysThatThePageIsNotThere) {
  test::ProgramRun run = Command({"view", "walk.htr", "--no-open"});
  run.environment.emplace_back("ORVANE_WORKBENCH=nowhere.html");
  ExpectNoPage(RunProgram(run), 3, "nowhere.html: No such file or directory\n");
}

TEST_F(ViewTest, WarnsOfAPageThatIsTooLargeForMail) {
  const std::string page = test::ReadFile(ORVANE_SOURCE_DIR "/tests/data/workbench.html");
  Write("large.html", page + std::string(25'000'000, ' '));
  test::ProgramRun run = Command({"view", "walk.htr", "--no-open"});
  run.environment.push_back("ORVANE_WORKBENCH=" + folder_.File("large.html"));
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.error,
      "orvane: walk.html: is 26 MB large; mail takes 25 MB in many places\n"
      "  \"orvane rewrite TAKE -o PART --cut FROM:TO\" makes a take of some of its frames.\n");
}

TEST_F(ViewTest, AloneItTellsWhereThePageIs) {
  const ProgramResult result = View({});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(test::Slashed(result.output),
              testing::MatchesRegex("Open it in any browser: .*/tests/data/workbench.html\n"));
  EXPECT_THAT(Names(), ElementsAre("take.trc", "walk.htr"));
}

TEST_F(ViewTest, AloneItCopiesThePage) {
  EXPECT_EQ(View({"-o", "empty.html"}).status, 0);
  EXPECT_EQ(Read("empty.html"), test::ReadFile(ORVANE_SOURCE_DIR "/tests/data/workbench.html"));
}

}  // namespace
