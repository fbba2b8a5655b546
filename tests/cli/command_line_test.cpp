#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/orvane_test.h"

namespace {

using test::ProgramResult;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using CommandLineTest = test::OrvaneTest;

TEST_F(CommandLineTest, VersionIsPrintedOnStandardOutput) {
  const ProgramResult result = Orvane({"--version"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "orvane 3.2.1\n");
  EXPECT_THAT(result.error, IsEmpty());
}

TEST_F(CommandLineTest, HelpNamesEveryVerb) {
  const ProgramResult result = Orvane({"--help"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("import"));
  EXPECT_THAT(result.output, HasSubstr("info"));
  EXPECT_THAT(result.output, HasSubstr("check"));
  EXPECT_THAT(result.output, HasSubstr("compare"));
  EXPECT_THAT(result.error, IsEmpty());
}

TEST_F(CommandLineTest, HelpSpeaksOfVerbs) {
  for (const auto& arguments : {std::vector<std::string>{"--help"}, {"map", "--help"}}) {
    const std::string help = Orvane(arguments).output;
    EXPECT_THAT(help, HasSubstr(" VERB ...\n"));
    EXPECT_THAT(help, HasSubstr("\nVerbs:\n"));
    EXPECT_THAT(help, Not(HasSubstr("ubcommand")));
    EXPECT_THAT(help, Not(HasSubstr("SUBCOMMAND")));
  }
}

// Pages break lines where the words of a flag are many.
std::string OnOneLine(const std::string& page) {
  std::istringstream words(page);
  std::string line;
  for (std::string word; words >> word;) line += (line.empty() ? "" : " ") + word;
  return line;
}

TEST_F(CommandLineTest, HelpSaysWhatTheDocumentationSays) {
  struct Said {
    std::vector<std::string> verb;
    std::vector<std::string> texts;
  };
  const std::string strict = "A warning is a refusal: status 1";
  const std::string allow = "With --strict: codes that are no reason to refuse; may be repeated";
  const std::string report =
      "Write what is found in the files to this file too, as JSON; one that is there is replaced, "
      "but none that is read or made";
  const std::string quiet =
      "No summary, no progress and no notes; warnings and errors are still told";
  const std::vector<Said> all = {
      {{"import"},
       {strict, allow, report, quiet,
        "Do all of it but write the scene, and show what would be made",
        "Number of frames to move the keys by, a whole number of 32 bits (0)",
        "binary to a name in .glb, text to one in .gltf"}},
      {{"export"}, {strict, allow, report, quiet}},
      {{"convert"},
       {strict, allow, report,
        "The BVK file to write, for one FILE; its name ends in .bvk, which is added to one without "
        "an "
        "extension",
        "Add X, Y and Z to every position, in the file's unit",
        "empty, also without --strict: convert files of which no marker is left, too",
        "No table, no progress and no notes; warnings and errors are still told"}},
      {{"map", "create"},
       {strict, allow, report, "No summary and no notes; warnings and errors are still told"}},
      {{"scene"}, {"The scene file, which orvane has written: .glb or .gltf"}},
      {{"check"}, {"import|apply|convert|export"}},
      {{"info"}, {report}},
      {{"compare"}, {report}}};
  for (const Said& said : all) {
    std::vector<std::string> arguments = said.verb;
    arguments.emplace_back("--help");
    const std::string help = OnOneLine(Orvane(arguments).output);
    for (const std::string& text : said.texts) EXPECT_THAT(help, HasSubstr(text));
  }
}

TEST_F(CommandLineTest, HelpOfAVerbNamesItsFlags) {
  const ProgramResult result = Orvane({"import", "--help"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("--segment-size NUMBER"));
  EXPECT_THAT(result.output, HasSubstr("--range FROM:TO"));
  EXPECT_THAT(result.output, HasSubstr("--system-unit mm|cm|m|in|ft"));
}

TEST_F(CommandLineTest, ASlashBeginsAPathAndNoFlag) {
  const ProgramResult result = Orvane({"info", "/missing/walk.htr"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, StartsWith("orvane: /missing/walk.htr: "));
}

struct WrongUsage {
  std::string name;
  std::vector<std::string> arguments;
  std::string complaint;
};

class WrongUsageTest : public test::OrvaneTest, public testing::WithParamInterface<WrongUsage> {};

TEST_P(WrongUsageTest, EndsWithStatusTwoAndSaysWhatIsWrong) {
  Write("walk.htr", test::SmallMotion());
  const ProgramResult result = Orvane(GetParam().arguments);
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_THAT(result.error, StartsWith("orvane: " + GetParam().complaint + "\n  \"orvane"));
  EXPECT_THAT(Names(), testing::ElementsAre("walk.htr"));
}

std::vector<std::string> Import(const std::vector<std::string>& flags) {
  std::vector<std::string> arguments = {"import", "walk.htr", "-o", "walk.glb"};
  arguments.insert(arguments.end(), flags.begin(), flags.end());
  return arguments;
}

std::vector<std::string> Compare(const std::vector<std::string>& flags) {
  std::vector<std::string> arguments = {"compare", "walk.htr", "walk.htr"};
  arguments.insert(arguments.end(), flags.begin(), flags.end());
  return arguments;
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongUsageTest,
    testing::Values(
        WrongUsage{"UnknownFlagOfTheProgram", {"--loud"}, "there is no flag \"--loud\""},
        WrongUsage{"NoInput", {"import", "-o", "walk.glb"}, "FILE is required"},
        WrongUsage{"NoSceneToStartFrom",
                   {"import", "walk.htr", "-o", "walk.glb", "--into", ""},
                   "--into: takes a name that is not empty"},
        WrongUsage{"NoMapping",
                   {"convert", "walk.trc", "--mapping", ""},
                   "--mapping: takes a name that is not empty"},
        WrongUsage{"NoFolderForOutputs",
                   {"convert", "walk.trc", "--output-dir", ""},
                   "--output-dir: takes a name that is not empty"},
        WrongUsage{"NoOutput", {"import", "walk.htr"}, "--output is required"},
        WrongUsage{"OutputOfAnotherKind",
                   {"import", "walk.htr", "-o", "walk.fbx"},
                   "--output: walk.fbx does not end in .glb or .gltf"},
        WrongUsage{"OutputWithoutName",
                   {"import", "walk.htr", "-o", ".glb"},
                   "--output: .glb does not end in .glb or .gltf"},
        WrongUsage{"TwoInputs", Import({"run.htr"}),
                   "The following argument was not expected: run.htr"},
        WrongUsage{"UnknownFlag", Import({"--loop"}), "there is no flag \"--loop\""},
        WrongUsage{"CreateAndApply", Import({"--create", "--apply"}), "--create excludes --apply"},
        WrongUsage{"EulerAndTcb", Import({"--euler", "--tcb"}), "--euler excludes --tcb"},
        WrongUsage{"AllAndRange", Import({"--all", "--range", "1:2"}), "--all excludes --range"},
        WrongUsage{"BothSidesOfACheckBox", Import({"--animation", "--no-animation"}),
                   "--animation excludes --no-animation"},
        WrongUsage{"RangeWithoutColon", Import({"--range", "5"}),
                   "--range: FROM:TO is expected, not 5"},
        WrongUsage{"RangeWithoutValue", Import({"--range"}), "--range needs a value"},
        WrongUsage{"ScaleTwice", Import({"--scale", "1", "--scale", "2"}),
                   "--scale is given more than once"},
        WrongUsage{"FrameRateAsNumber", Import({"--frame-rate", "30"}),
                   "--frame-rate: 30 is not one of file, keep"},
        WrongUsage{"UnknownSystemUnit", Import({"--system-unit", "yd"}),
                   "--system-unit: yd is not one of mm, cm, m, in, ft"},
        WrongUsage{"UnknownSettings", Import({"--settings", "mine"}),
                   "--settings: mine is not one of fresh, user"},
        WrongUsage{"SelectTakesOneName", Import({"--select", "Hips", "Spine"}),
                   "The following argument was not expected: Spine"},
        WrongUsage{
            "FramesWithoutJson", {"info", "walk.htr", "--frames"}, "--frames requires --json"},
        WrongUsage{"FramesOfTheHierarchyAlone",
                   {"info", "walk.htr", "--json", "--frames", "--hierarchy"},
                   "--hierarchy excludes --frames"},
        WrongUsage{"InfoWithoutInput", {"info"}, "FILE is required"},
        WrongUsage{"CheckWithoutInput", {"check"}, "FILE is required"},
        WrongUsage{"UnknownSeverity",
                   {"check", "walk.htr", "--max-severity", "fatal"},
                   "--max-severity: fatal is not one of note, warning, error"},
        WrongUsage{"CompareWithoutInput", {"compare"}, "A is required"},
        WrongUsage{"CompareWithOneFile", {"compare", "walk.htr"}, "B is required"},
        WrongUsage{"CompareThreeFiles",
                   {"compare", "walk.htr", "walk.htr", "run.htr"},
                   "The following argument was not expected: run.htr"},
        WrongUsage{"NegativeTolerance", Compare({"--tolerance-mm", "-1"}),
                   "--tolerance-mm: a number that is not negative is expected, not \"-1\""},
        WrongUsage{"ToleranceWithUnit", Compare({"--tolerance-deg", "1deg"}),
                   "--tolerance-deg: a number that is not negative is expected, not \"1deg\""},
        WrongUsage{"ToleranceWithComma", Compare({"--tolerance-mm=0,1"}),
                   "--tolerance-mm: a number that is not negative is expected, not \"0,1\""},
        WrongUsage{"ToleranceThatIsNoNumber", Compare({"--tolerance-mm", "nan"}),
                   "--tolerance-mm: a number that is not negative is expected, not \"nan\""},
        WrongUsage{"InfiniteTolerance", Compare({"--tolerance-mm", "1e999"}),
                   "--tolerance-mm: a number that is not negative is expected, not \"1e999\""},
        WrongUsage{"EmptyTolerance", Compare({"--tolerance-mm", ""}),
                   "--tolerance-mm: a number that is not negative is expected, not \"\""},
        WrongUsage{"ToleranceWithoutValue", Compare({"--tolerance-deg"}),
                   "--tolerance-deg needs a value"},
        WrongUsage{"ToleranceTwice", Compare({"--tolerance-mm", "1", "--tolerance-mm", "2"}),
                   "--tolerance-mm is given more than once"},
        WrongUsage{"UnknownFlagOfCompare", Compare({"--strict"}), "there is no flag \"--strict\""}),
    [](const auto& test_case) { return test_case.param.name; });

}  // namespace
