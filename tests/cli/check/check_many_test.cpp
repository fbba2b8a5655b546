#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

// `orvane check` of several files and of folders: which files count, and a line for each code.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::Slashed;
using test::SmallMotion;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string OddRate() { return Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 59.94"); }

class CheckManyTest : public test::OrvaneTest {
 protected:
  CheckManyTest() {
    Write("walk.htr", SmallMotion());
    Write("rate.htr", OddRate());
    Write("note.htr", Replaced(SmallMotion(), "[EndOfFile]\n", ""));
  }

  void WriteIn(const std::string& folder, const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories(folder_.Path() / folder);
    Write(folder + "/" + name, bytes);
  }
};

TEST_F(CheckManyTest, TellsEachCodeInALineWithTheNamesOfTheFilesTheWorstFirst) {
  for (const char* name : {"b.htr", "c.htr", "d.htr", "e.htr"}) Write(name, OddRate());
  const ProgramResult result =
      Orvane({"check", "note.htr", "walk.htr", "rate.htr", "b.htr", "c.htr", "d.htr", "e.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output,
            "rate.htr, b.htr, c.htr and 2 more: warning: 5 times, first: found \"59.94\", expected "
            "a whole number for DataFrameRate (line 7, column 15). 59 is taken: a minute lasts "
            "60.96 s. [htr-rate-cut]\n"
            "note.htr: note: found the end of the file, expected [EndOfFile] (line 28, column 1). "
            "Nothing is lost, unless the file was cut short. [htr-end-missing]\n"
            "5 of 7 files have warnings, 1 has notes, 1 is clean\n");
  EXPECT_THAT(result.error, IsEmpty());
}

TEST_F(CheckManyTest, CountsWhatComesOftenInOneFile) {
  Write("often.htr", Replaced(SmallMotion(), "NumFrames 3\n", "NumFrames 3\nStudio 5\nStudio 5\n"));
  const std::string output = Orvane({"check", "walk.htr", "often.htr"}).output;
  EXPECT_THAT(output, HasSubstr("often.htr: note: 2 times, first: found \"Studio\""));
  EXPECT_THAT(output, HasSubstr("\n1 of 2 files has notes, 1 is clean\n"));
}

TEST_F(CheckManyTest, TellsAllPlacesWhenAskedTo) {
  const ProgramResult result = Orvane({"check", "--verbose", "walk.htr", "rate.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output,
            "walk.htr: clean: 2 segments, 3 frames\n"
            "rate.htr:7:15: warning: found \"59.94\", expected a whole number for DataFrameRate "
            "[htr-rate-cut]\n"
            "  59 is taken: a minute lasts 60.96 s.\n"
            "rate.htr: 1 warning\n");
}

TEST_F(CheckManyTest, TellsWhatItMeansToAnAction) {
  Write("b.htr", OddRate());
  EXPECT_EQ(Orvane({"check", "--for", "apply", "rate.htr", "b.htr", "note.htr"}).output,
            "rate.htr and b.htr: warning: 2 times, first: The frame rate has a fraction: \"59.94\" "
            "(line 7, column 15). 59.94 a second become 59.3 in the host: a minute lasts 60.7 s "
            "there. [htr-rate-cut]\n"
            "note.htr: note: [EndOfFile] is missing (line 28, column 1). Nothing is lost, unless "
            "the file was cut short. [htr-end-missing]\n"
            "2 of 3 files have warnings for apply, 1 has notes\n");
}

TEST_F(CheckManyTest, CountsTheFilesThatCouldNotBeChecked) {
  const ProgramResult result = Orvane({"check", "walk.htr", "nowhere.htr", "note.htr"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: nowhere.htr: No such file or directory\n");
  EXPECT_THAT(result.output,
              HasSubstr("\n1 of 3 files has notes, 1 is clean, 1 could not be checked\n"));
}

TEST_F(CheckManyTest, TellsOfNothingButTheStatusWhenItIsToBeQuiet) {
  for (const auto& [file, status] :
       {std::pair{"walk.htr", 0}, std::pair{"rate.htr", 1}, std::pair{"note.htr", 0}}) {
    const ProgramResult result = Orvane({"check", "--quiet", file, "note.htr"});
    EXPECT_EQ(result.status, status) << file;
    EXPECT_EQ(result.output + result.error, "") << file;
  }
  const ProgramResult missing = Orvane({"check", "--quiet", "nowhere.htr", "rate.htr"});
  EXPECT_EQ(missing.status, 3);
  EXPECT_EQ(missing.error, "orvane: nowhere.htr: No such file or directory\n");
  EXPECT_EQ(Orvane({"check", "--quiet", "--json", "walk.htr"}).status, 2);
  EXPECT_EQ(Orvane({"check", "--quiet", "--verbose", "walk.htr"}).status, 2);
}

TEST_F(CheckManyTest, TellsOfAFileThatIsGivenAgainOnce) {
  WriteIn("takes", "a.htr", OddRate());
  const ProgramResult result =
      Orvane({"check", "--json", "takes/a.htr", "walk.htr", "./walk.htr", "takes", "walk.htr"});
  ASSERT_EQ(json::parse(result.output)["files"].size(), 2U);
  EXPECT_EQ(Slashed(result.error),
            "orvane: ./walk.htr: note: it is left out: the same file as walk.htr\n"
            "orvane: takes/a.htr: note: it is given again, and told of once\n"
            "orvane: walk.htr: note: it is given again, and told of once\n");
}

// --- Folders ---

TEST_F(CheckManyTest, LooksIntoFoldersInAFolderWhenAskedTo) {
  WriteIn("takes/june", "b.trc", "");
  WriteIn("takes/june/late", "a.HTR", SmallMotion());
  WriteIn("takes", "z.htr", SmallMotion());
  WriteIn("takes", "a.htr", SmallMotion());
  const ProgramResult result = Orvane({"check", "--recursive", "--json", "takes"});
  const json report = json::parse(result.output);
  std::vector<std::string> files;
  for (const json& file : report["files"]) {
    files.push_back(Slashed(file["file"].get<std::string>()));
  }
  EXPECT_THAT(files, testing::ElementsAre("takes/a.htr", "takes/june/b.trc",
                                          "takes/june/late/a.HTR", "takes/z.htr"));
  EXPECT_THAT(result.error, IsEmpty());
}

TEST_F(CheckManyTest, SaysWhatItLeavesOutOfAFolder) {
  WriteIn("takes/deeper", "b.htr", SmallMotion());
  for (const char* name : {"a.htr", "1.bvk", "2.txt", "3", "4.md", "5"}) {
    WriteIn("takes", name, SmallMotion());
  }
  const ProgramResult result = Orvane({"check", "takes"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Slashed(result.output), "takes/a.htr: clean: 2 segments, 3 frames\n");
  EXPECT_EQ(result.error,
            "orvane: takes: note: 5 files are left out (1.bvk, 2.txt, 3 and 2 more): names that "
            "end in .htr, .trc or .mnm count\n"
            "orvane: takes: note: 1 folder is left out (deeper): --recursive looks into folders\n");
  EXPECT_THAT(Orvane({"check", "--quiet", "takes"}).error, IsEmpty());
}

TEST_F(CheckManyTest, AFolderOfFoldersSaysHowToLookIntoThem) {
  WriteIn("takes/deeper", "b.htr", SmallMotion());
  const ProgramResult result = Orvane({"check", "takes"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error,
            "orvane: takes: The folder holds no file to check\n"
            "  Of a folder, files are checked whose names end in .htr, .trc or .mnm. --recursive "
            "looks into the folders in it, too.\n");
  EXPECT_EQ(Orvane({"check", "--recursive", "takes"}).status, 0);
}

}  // namespace
