#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <tuple>

#include "tests/cli/convert/convert_test.h"

// Conversions by a mapping whose names differ from those of the markers.

namespace {

using nlohmann::json;
using test::ConvertTest;
using test::ProgramResult;
using test::TrcText;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class NamesOfMappingTest : public ConvertTest {
 protected:
  NamesOfMappingTest() {
    Write("walker.mnm", "LFHD\twalker:LFHD\nC7\twalker:C7\n");
    WriteMarkers("anna.trc", {"anna:LFHD", "anna:C7", "anna:LTHI"});
    WriteMarkers("small.trc", {"Walker:lfhd", "walker:C7"});
    WriteMarkers("two.trc", {"anna:LFHD", "bob:LFHD", "anna:C7", "bob:C7"});
  }

  void WriteMarkers(const std::string& name, const std::vector<std::string>& markers) const {
    TrcText text;
    text.markers = markers;
    text.frames = {TrcText::Frame(markers.size(), "1\t2\t3")};
    Write(name, text.Text());
  }

  ProgramResult ConvertBy(const std::string& names, std::vector<std::string> arguments) const {
    arguments.insert(arguments.end(), {"--mapping", "walker.mnm", "--names", names});
    return Convert(arguments);
  }
};

TEST_F(NamesOfMappingTest, AnotherSubjectIsTakenForThatOfTheMappingAndSaid) {
  const ProgramResult result = ConvertBy("subject", {"anna.trc"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: anna.trc: note: 2 names of \"anna:\" are taken for those of \"walker:\"\n"
            "orvane: anna.trc: note: A marker has no entry in the mapping: \"anna:LTHI\" (line 4, "
            "column 35). Such a marker is dropped. [mnm-marker-unmapped]\n");
  EXPECT_EQ(result.output,
            "File      Frames  Kept  Dropped  Dropouts  Found  Output    Status\n"
            "anna.trc       1     2        1         0  1n     anna.bvk  converted\n"
            "1 of 1 converted\n");
  EXPECT_THAT(ReadText("anna.bvk"), HasSubstr("LFHD"));
  EXPECT_THAT(ReadText("anna.bvk"), HasSubstr("C7"));
  EXPECT_THAT(ReadText("anna.bvk"), Not(HasSubstr("anna:")));
  EXPECT_EQ(Read("walker.mnm"), "LFHD\twalker:LFHD\nC7\twalker:C7\n");
  EXPECT_THAT(Names(), ElementsAre("anna.bvk", "anna.trc", "small.trc", "two.trc", "walker.mnm"));
}

// But for the moment at which it was made.
TEST_F(NamesOfMappingTest, WhatIsWrittenIsWhatTheMappingsOwnSubjectWouldGet) {
  const auto written = [this](const std::string& subject) {
    WriteMarkers("take.trc", {subject + "C7", subject + "LTHI", subject + "LFHD"});
    EXPECT_EQ(ConvertBy("subject", {"take.trc", "--force", "--quiet"}).status, 0);
    std::string text = ReadText("take.bvk");
    const std::size_t moment = text.find("$DateTime");
    return text.erase(moment, text.find('\n', moment) - moment);
  };
  const std::string own = written("walker:");
  for (const std::string subject : {"anna:", "Anna:Lee:", "", "anna_", "Anna_Lee_", "walker_",
                                    "walker ", "Walker ", "anna ", "Anna Lee "}) {
    EXPECT_EQ(written(subject), own) << subject;
  }
}

TEST_F(NamesOfMappingTest, OnlyAsFarAsTheFlagSays) {
  struct Row {
    std::string file;
    std::string names;
    std::string told;
    std::string kept;
  };
  const Row rows[] = {
      {"anna.trc", "exact", "--names subject takes 2 names for those of the mapping, and", "-"},
      {"anna.trc", "case", "--names subject takes 2 names for those of the mapping, and", "-"},
      {"small.trc", "exact", "\"Walker:lfhd\"", "1"},
      {"small.trc", "case", "note: 1 name is taken for that in another case of letters\n", "2"},
      {"small.trc", "subject", "note: 1 name is taken for that in another case of letters\n", "2"},
      {"blanks.trc", "exact", "--names subject takes 2 names for those of the mapping, and", "-"},
      {"blanks.trc", "case", "--names subject takes 2 names for those of the mapping, and", "-"},
      {"blanks.trc", "subject",
       "note: 1 name of \"Walker \" is taken for that of \"walker:\", and 1 name of \"walker_\" is "
       "taken for that of \"walker:\"\n",
       "2"}};
  WriteMarkers("blanks.trc", {"Walker lfhd", "walker_C7"});
  for (const Row& row : rows) {
    const ProgramResult result = ConvertBy(row.names, {row.file, "--force", "--json"});
    EXPECT_THAT(result.error, HasSubstr(row.told)) << row.file << ' ' << row.names;
    const json kept = json::parse(result.output)["files"][0]["markers_kept"];
    EXPECT_EQ(kept.is_null() ? "-" : std::to_string(kept.get<int>()), row.kept);
  }
}

TEST_F(NamesOfMappingTest, WhatIsAmbiguousIsRefusedFileByFile) {
  const ProgramResult result =
      ConvertBy("subject", {"two.trc", "anna.trc", "small.trc", "--jobs", "1"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              HasSubstr("orvane: two.trc: \"walker:LFHD\" of the mapping could be \"anna:LFHD\" or "
                        "\"bob:LFHD\", the first of 2 such cases\n"
                        "  An entry for one of them in the mapping says which; \"orvane map "
                        "suggest --subject NAME\" makes a mapping of one subject.\n"));
  EXPECT_THAT(result.error, Not(HasSubstr("mnm-fits-nothing")));
  EXPECT_THAT(result.output, HasSubstr("two.bvk    refused\n"));
  EXPECT_THAT(result.output, EndsWith("2 of 3 converted\n"));
  EXPECT_FALSE(Exists("two.bvk"));
  for (const std::string file : {"anna.bvk", "small.bvk"}) {
    EXPECT_THAT(ReadText(file), HasSubstr("$NumMarkers 2\n"));
  }
}

TEST_F(NamesOfMappingTest, BlanksAndUnderscoresForOneColonAreRefused) {
  const std::string advice =
      "  An entry for one of them in the mapping says which; \"orvane map suggest --subject NAME\" "
      "makes a mapping of one subject.\n";
  const std::string no_entry =
      "  No mapping can name a marker with blanks: without them in the file, an entry says "
      "which.\n";
  const std::vector<std::tuple<std::string, std::string, std::string>> rows = {
      {"walker_LFHD", "walker LFHD", advice},
      {"walker LFHD", "walker_LFHD", advice},
      {"walker lfhd", "walker LFHD", no_entry},
      {"anna LFHD", "bob LFHD", no_entry},
      {"anna LFHD", "anna:LFHD", ""}};  // the colon is surer
  for (const auto& [one, other, told] : rows) {
    WriteMarkers("both.trc", {one, other, "C7"});
    for (const bool is_dry : {true, false}) {
      const ProgramResult result =
          ConvertBy("subject", {"both.trc", is_dry ? "--dry-run" : "--json"});
      EXPECT_EQ(result.status, told.empty() ? 0 : 1) << one;
      const std::string text = "orvane: both.trc: \"walker:LFHD\" of the mapping could be \"" +
                               one + "\" or \"" + other + "\"\n" + told;
      EXPECT_EQ(result.error.find(text) != std::string::npos, !told.empty()) << result.error;
    }
  }
}

TEST_F(NamesOfMappingTest, BlanksForUnderscoresAreSaid) {
  Write("walker.mnm", "LFHD\tLeft_Head\nRFHD\tRight_Head\nC7\tWalker_Neck\n");
  WriteMarkers("take.trc", {"Left Head", "right head", "anna_neck"});
  EXPECT_THAT(ConvertBy("subject", {"take.trc"}).error,
              StartsWith("orvane: take.trc: note: 2 names with blanks are taken for those with "
                         "underscores\n"));
}

// Their copies, and the files beside them that need none, are of one run of the plug-in.
TEST_F(NamesOfMappingTest, NamesWithBlanksAreConvertedAmongOthers) {
  WriteMarkers("blanks.trc", {"walker LFHD", "walker C7", "Left over"});
  WriteMarkers("walker.trc", {"walker:LFHD", "walker:C7"});
  const ProgramResult result =
      ConvertBy("subject", {"anna.trc", "blanks.trc", "walker.trc", "--jobs", "1", "--json"});
  EXPECT_EQ(result.status, 0) << result.error;
  const json files = json::parse(result.output)["files"];
  for (const std::size_t file : {0U, 1U, 2U}) EXPECT_EQ(files[file]["markers_kept"], 2) << file;
  EXPECT_EQ(files[1]["names_taken"], json::parse(R"([
      {"marker": "walker C7", "taken_for": "walker:C7"},
      {"marker": "walker LFHD", "taken_for": "walker:LFHD"}])"));
  EXPECT_EQ(files[1]["findings"][0]["code"], "mnm-marker-unmappable");
  EXPECT_EQ(files[1]["findings"][0]["names"], json::array({"Left over"}));
  EXPECT_THAT(ReadText("blanks.bvk"), HasSubstr("$Filename   blanks\n"));
  EXPECT_THAT(test::Slashed(ReadText("ConvertBVKLog.txt")),
              HasSubstr(test::Slashed(Absolute("blanks.trc"))));
  EXPECT_THAT(ReadText("ConvertBVKLog.txt"), Not(HasSubstr("copies")));
  EXPECT_THAT(Read("blanks.trc"), HasSubstr("walker LFHD"));
  EXPECT_THAT(ConvertBy("subject", {"blanks.trc", "--dry-run"}).output,
              EndsWith("  rename  walker LFHD to LFHD\n"
                       "  rename  walker C7 to C7\n"
                       "  drop    Left over\n"));
}

TEST_F(NamesOfMappingTest, WhatCannotBeRenamedIsRefusedAndForeseen) {
  WriteMarkers("long.trc", {"walker LFHD", std::string(10100, 'x')});
  Write("walker.mnm", "LFHD\t" + std::string(200, 'y') + ":LFHD\n");
  for (const std::string flag : {"--dry-run", "--force"}) {
    const ProgramResult result = ConvertBy("subject", {"long.trc", flag, "--no-report"});
    EXPECT_EQ(result.status, 1) << flag;
    EXPECT_THAT(result.error,
                HasSubstr("orvane: long.trc: --names cannot rename its markers: their "
                          "line is read in pieces\n"))
        << flag;
    EXPECT_THAT(result.output, HasSubstr("refused")) << flag;
  }
}

TEST_F(NamesOfMappingTest, OfManyFilesIsSaidOnce) {
  WriteMarkers("again.trc", {"anna:LFHD", "anna:C7"});
  const ProgramResult result = ConvertBy("subject", {"anna.trc", "again.trc", "--jobs", "2"});
  EXPECT_THAT(result.error, StartsWith("orvane: anna.trc: note: in 2 files, first here: 2 names of "
                                       "\"anna:\" are taken for those of \"walker:\"\n"));
  EXPECT_THAT(ConvertBy("subject", {"anna.trc", "again.trc", "--force", "--quiet"}).error,
              Not(HasSubstr("taken for")));
}

TEST_F(NamesOfMappingTest, ADryRunSaysTheSameOfFilesAndMarkers) {
  for (const bool is_there : {false, true}) {
    if (is_there) Write("anna.bvk", "");
    const ProgramResult result = ConvertBy("subject", {"anna.trc", "--dry-run"});
    EXPECT_THAT(result.error, StartsWith("orvane: anna.trc: note: 2 names of \"anna:\""));
    EXPECT_THAT(result.output, EndsWith("  rename  anna:LFHD to LFHD\n"
                                        "  rename  anna:C7 to C7\n"
                                        "  drop    anna:LTHI\n"));
  }
  EXPECT_EQ(ConvertBy("subject", {"two.trc", "--dry-run"}).status, 1);
}

TEST_F(NamesOfMappingTest, JsonAndTheReportHaveIt) {
  for (const auto& flags : {std::vector<std::string>{}, {"--dry-run"}}) {
    std::vector<std::string> arguments = {"anna.trc", "two.trc",  "--force",
                                          "--json",   "--report", "all.json"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const json report = json::parse(ConvertBy("subject", arguments).output);
    EXPECT_EQ(report["files"][0]["names_taken"], json::parse(R"([
      {"marker": "anna:C7", "taken_for": "walker:C7"},
      {"marker": "anna:LFHD", "taken_for": "walker:LFHD"}])"));
    EXPECT_EQ(report["files"][0]["findings"][0]["names"], json::array({"anna:LTHI"}));
    EXPECT_EQ(report["files"][1]["names_taken"], json::array());
    EXPECT_EQ(report["files"][1]["status"], "refused");
    EXPECT_THAT(Read("all.json"), HasSubstr("\"anna:LTHI\""));
    EXPECT_THAT(Read("all.json"), Not(HasSubstr("mnm-fits-nothing")));
  }
}

TEST_F(NamesOfMappingTest, TheSubjectThatTheMappingMeansGoesFirst) {
  WriteMarkers("both.trc", {"anna:LFHD", "walker:LFHD", "anna:C7"});
  const ProgramResult result = ConvertBy("subject", {"both.trc", "--dry-run"});
  EXPECT_THAT(result.error, Not(HasSubstr("taken for")));
  EXPECT_THAT(result.output, EndsWith("  drop    anna:LFHD\n"
                                      "  rename  walker:LFHD to LFHD\n"
                                      "  drop    anna:C7\n"));
}

TEST_F(NamesOfMappingTest, NeedsAMappingAndAWordThatItKnows) {
  EXPECT_EQ(Convert({"anna.trc", "--names", "case"}).status, 2);
  EXPECT_EQ(ConvertBy("alike", {"anna.trc"}).status, 2);
}

}  // namespace
