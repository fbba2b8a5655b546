#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

// `orvane compare` of folders.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::Slashed;
using test::SmallMotion;
using testing::HasSubstr;
using testing::IsEmpty;

// The hips are 3 mm off in frame 2, and the spine hangs from them.
std::string Moved() { return Replaced(SmallMotion(), "2 10 0 0 0 0 90 1", "2 10 0 3 0 0 90 1"); }

std::string OddRate() { return Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 59.94"); }

std::string OneMarker(const std::string& height) {
  return "PathFileType\t4\t(X/Y/Z)\twalk.trc\n"
         "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
         "OrigNumFrames\n"
         "120\t120\t1\t1\tmm\t120\t1\t1\n"
         "Frame#\tTime\tHead\t\t\t\n"
         "\t\tX1\tY1\tZ1\n\n"
         "1\t0.0\t0\t" +
         height + "\t0\n";
}

class CompareFoldersTest : public test::OrvaneTest {
 protected:
  void Put(const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories((folder_.Path() / name).parent_path());
    Write(name, bytes);
  }

  ProgramResult Compare(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"compare", "old", "new"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }
};

TEST_F(CompareFoldersTest, TellsOfEachPairInALine) {
  Put("old/a.htr", SmallMotion());
  Put("new/a.htr", SmallMotion());
  Put("old/b.htr", SmallMotion());
  Put("new/b.htr", Moved());
  Put("old/c.trc", OneMarker("1500"));
  Put("new/c.trc", OneMarker("1500.5"));
  Put("old/d.htr", SmallMotion());
  Put("new/e.htr", SmallMotion());
  Put("new/f.htr", SmallMotion());
  const ProgramResult result = Compare();
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output,
            "A  old\n"
            "B  new\n"
            "\n"
            "File   Verdict    largest mm  largest deg  first beyond\n"
            "a.htr  same         0.000000     0.000000             -\n"
            "b.htr  differs      3.000000     0.000000             2\n"
            "c.trc  differs      0.500000            -             1\n"
            "d.htr  only in A           -            -             -\n"
            "e.htr  only in B           -            -             -\n"
            "f.htr  only in B           -            -             -\n"
            "1 of 6 files is the same, 2 differ, 1 is only in A, 2 are only in B\n");
  EXPECT_EQ(Compare({"--tolerance-mm", "5"}).status, 1) << "files of one folder are a difference";
}

TEST_F(CompareFoldersTest, AreTheSameWhenAllOfTheirFilesAre) {
  for (const char* name : {"old/a.htr", "new/a.htr", "old/b.htr"}) Put(name, SmallMotion());
  Put("new/b.htr", Moved());
  EXPECT_EQ(Compare().status, 1);
  const ProgramResult result = Compare({"--tolerance-mm", "5", "--tolerance-deg", "1"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("\n2 of 2 files are the same\n"));
}

TEST_F(CompareFoldersTest, FilesAreInFoldersOfTheSameNameWhenThoseAreLookedInto) {
  for (const char* name : {"old/june/a.htr", "new/june/a.htr", "old/may/b.htr", "new/b.htr"}) {
    Put(name, SmallMotion());
  }
  const ProgramResult result = Compare({"--recursive"});
  EXPECT_EQ(result.status, 1);
  const std::string output = Slashed(result.output);
  EXPECT_THAT(output, HasSubstr("\njune/a.htr  same "));
  EXPECT_THAT(output, HasSubstr("\nb.htr       only in B"));
  EXPECT_THAT(output, HasSubstr("\nmay/b.htr   only in A"));
}

TEST_F(CompareFoldersTest, AFileThatIsRefusedKeepsNoOtherFromBeingCompared) {
  for (const char* name : {"old/a.htr", "old/b.htr", "new/b.htr"}) Put(name, SmallMotion());
  Put("new/a.htr", "no motion");
  const ProgramResult result = Compare();
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, HasSubstr("\na.htr  not compared           -            -"));
  EXPECT_THAT(result.output, HasSubstr("\nb.htr  same "));
  EXPECT_THAT(result.output, HasSubstr("\n1 of 2 files is the same, 1 could not be compared\n"));
  EXPECT_THAT(Slashed(result.error), HasSubstr("orvane: new/a.htr: "));
  const json report = json::parse(Compare({"--json"}).output);
  EXPECT_EQ(report["not_compared"], json::array({"a.htr"}));
  EXPECT_EQ(report["same"], false);
}

TEST_F(CompareFoldersTest, JsonHasWhatIsToldOfEachPairAlone) {
  Put("old/a.htr", SmallMotion());
  Put("new/a.htr", Moved());
  Put("old/b.trc", OneMarker("1500"));
  Put("new/b.trc", OneMarker("1500"));
  Put("old/c.htr", SmallMotion());
  Put("new/d.htr", SmallMotion());
  const ProgramResult result = Compare({"--json"});
  EXPECT_EQ(result.status, 1);
  const json report = json::parse(result.output);
  EXPECT_EQ(report["version"], 2);
  EXPECT_EQ(report["folder_a"], "old");
  EXPECT_EQ(report["folder_b"], "new");
  EXPECT_EQ(report["same"], false);
  EXPECT_EQ(report["only_in_a"], json::array({"c.htr"}));
  EXPECT_EQ(report["only_in_b"], json::array({"d.htr"}));
  EXPECT_EQ(report["not_compared"], json::array());
  ASSERT_EQ(report["pairs"].size(), 2U);
  for (std::size_t pair = 0; pair < 2; ++pair) {
    const std::string name = pair == 0 ? "a.htr" : "b.trc";
    json alone = json::parse(Orvane({"compare", "old/" + name, "new/" + name, "--json"}).output);
    json together = report["pairs"][pair];
    for (const char* file : {"file_a", "file_b"}) {
      alone[file] = Slashed(alone[file]);
      together[file] = Slashed(together[file]);
    }
    EXPECT_EQ(together, alone);
  }
}

TEST_F(CompareFoldersTest, AFileIsComparedWithTheOneOfItsNameInAFolder) {
  Write("a.htr", SmallMotion());
  Put("new/a.htr", Moved());
  const std::string page = Slashed(Orvane({"compare", "a.htr", "new"}).output);
  EXPECT_EQ(page, Slashed(Orvane({"compare", "a.htr", "new/a.htr"}).output));
  EXPECT_EQ(Orvane({"compare", "new/", "a"}).status, 1) << "the extension may be left out";
  Write("b.htr", SmallMotion());
  const ProgramResult missing = Orvane({"compare", "new", "b.htr"});
  EXPECT_EQ(missing.status, 3);
  EXPECT_EQ(Slashed(missing.error), "orvane: new/b.htr: No such file or directory\n");
  EXPECT_EQ(Orvane({"compare", "nowhere", "new"}).status, 3);
  EXPECT_THAT(Orvane({"compare", "nowhere.htr", "new"}).error,
              HasSubstr("orvane: nowhere.htr: No such file or directory\n"));
}

TEST_F(CompareFoldersTest, TellsOfNothingButTheStatusWhenItIsToBeQuiet) {
  Put("old/a.htr", OddRate());
  Put("new/a.htr", OddRate());
  for (const int status : {0, 1}) {
    ProgramResult result = Compare({"--quiet"});
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(result.output + result.error, "");
    result = Orvane({"compare", "--quiet", "old/a.htr", "new/a.htr"});
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(result.output + result.error, "");
    Put("new/a.htr", Moved());
  }
  EXPECT_EQ(Compare({"--quiet", "--json"}).status, 2);
  const ProgramResult missing = Orvane({"compare", "--quiet", "old/a.htr", "nowhere.htr"});
  EXPECT_EQ(missing.status, 3);
  EXPECT_EQ(missing.error, "orvane: nowhere.htr: No such file or directory\n");
}

TEST_F(CompareFoldersTest, TellsWhatIsOddALineACodeAndWritesOneReport) {
  for (const char* name : {"old/a.htr", "new/a.htr"}) Put(name, OddRate());
  for (const char* name : {"old/b.htr", "new/b.htr"}) Put(name, SmallMotion());
  const ProgramResult result = Compare({"--report", "found.json"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(Slashed(result.error),
              testing::StartsWith("orvane: old/a.htr: warning: in 2 files, first here: The frame"));
  EXPECT_EQ(json::parse(Read("found.json"))["files"].size(), 4U);
  EXPECT_EQ(Compare({"--report", "new/b.htr"}).status, 2);
  EXPECT_EQ(Read("new/b.htr"), SmallMotion());
  EXPECT_THAT(Compare({"--no-report"}).error, IsEmpty());
}

TEST_F(CompareFoldersTest, AFolderWithNothingToCompareIsSaidToBeOne) {
  std::filesystem::create_directories(folder_.Path() / "new");
  Put("old/a.htr", SmallMotion());
  const ProgramResult result = Compare();
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, HasSubstr("\na.htr  only in A"));
  EXPECT_EQ(result.error,
            "orvane: new: The folder holds no file to compare\n"
            "  Of a folder, files are compared whose names end in .htr or .trc.\n");
}

}  // namespace
