#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <ostream>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using testing::ElementsAreArray;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using namespace std::string_literals;

// What is found in each file: line, column, severity and code.
std::vector<std::string> FindingsIn(const json& file) {
  std::vector<std::string> findings;
  for (const json& finding : file["findings"]) {
    findings.push_back(std::to_string(finding["line"].get<int>()) + ":" +
                       std::to_string(finding["column"].get<int>()) + " " +
                       finding["severity"].get<std::string>() + " " +
                       finding["code"].get<std::string>());
  }
  return findings;
}

struct OddMapping {
  std::string behaviour;
  std::string bytes;
  std::vector<std::string> findings;
};

std::ostream& operator<<(std::ostream& out, const OddMapping& odd) { return out << odd.behaviour; }

class OddMappingTest : public test::OrvaneTest, public testing::WithParamInterface<OddMapping> {};

TEST_P(OddMappingTest, IsNamedByPlaceAndCodeByBothVerbs) {
  Write("m.mnm", GetParam().bytes);
  const ProgramResult checked = Orvane({"check", "m.mnm", "--json"});
  const json report = json::parse(checked.output);
  EXPECT_EQ(report["version"], 1);
  EXPECT_EQ(report["files"][0]["file_type"], "MNM");
  EXPECT_THAT(FindingsIn(report["files"][0]), ElementsAreArray(GetParam().findings));
  EXPECT_EQ(Orvane({"map", "lint", "m.mnm", "--json"}).output, checked.output);
}

INSTANTIATE_TEST_SUITE_P(
    All, OddMappingTest,
    testing::Values(
        OddMapping{"NothingOdd", "LFHD\tHead1\t\nC7 Back\r\n RWRI  Wrist", {}},
        OddMapping{"ByteOrderMark",
                   "\xEF\xBB\xBFLFHD\tHead1\t\n",
                   {"1:1 warning mnm-byte-order-mark", "1:1 warning mnm-standard-unknown"}},
        OddMapping{"Nul", "LFHD\tHead1\0\n"s, {"1:11 warning mnm-nul"}},
        OddMapping{"LongLine",
                   "C7 " + std::string(1019, 'x') + "\n" + "LFHD " + std::string(1020, 'y') + "\n",
                   {"2:1024 warning mnm-line-cut", "2:1024 warning mnm-standard-unknown",
                    "2:1024 warning mnm-name-missing"}},
        OddMapping{"BlankLines",
                   "\nC7 Back\n \t\n",
                   {"1:1 note mnm-line-blank", "3:1 note mnm-line-blank"}},
        OddMapping{"OneWord",
                   "C7\nLFHD Head1\n  LBHD\t\n",
                   {"1:1 warning mnm-name-missing", "3:3 warning mnm-name-missing"}},
        OddMapping{"NameWithBlank", "C7\tUpper Back\t\n", {"1:10 warning mnm-rest-ignored"}},
        OddMapping{"CarriageReturnsAlone", "C7 Back\rT10 Spine\r", {"1:1 error mnm-line-ends"}},
        OddMapping{"NoEntries", "", {"1:1 error mnm-entries-missing"}},
        OddMapping{"UnknownStandardName", "c7 Back\n", {"1:1 warning mnm-standard-unknown"}},
        OddMapping{"StandardNameTwice", "C7 Back\nC7 Spine\n", {"2:1 warning mnm-standard-twice"}},
        OddMapping{"EntryTwice", "C7 Back\nC7 Back\n", {"2:4 note mnm-entry-doubled"}},
        OddMapping{
            "EntryShadowed", "C7 Back\nT10 Back\nLFHD back\n", {"2:5 warning mnm-entry-shadowed"}}),
    [](const auto& each) { return each.param.behaviour; });

class MapLintTest : public test::OrvaneTest {
 protected:
  MapLintTest() {
    Write("m.mnm", "LFHD\tHead1\t\nLBHD\thead2\t\n");
    const test::TrcText text{.markers = {"Head1", "Head2", "Right Head", "Toe"}};
    Write("take.trc", text.Text());
    const test::TrcText mapped{.markers = {"Head1", "head2"}};
    Write("mapped.TRC", mapped.Text());
  }
};

TEST_F(MapLintTest, TellsWhatTheLinesBecome) {
  Write("m.mnm", "LFHD\tHead1\t\nLBHD\nC7\tHead1\t\nlfhd Neck\nBack T10\nLFHD Ear\n");
  const ProgramResult result = Orvane({"map", "lint", "m.mnm"});
  EXPECT_EQ(result.output,
            "m.mnm:2:1: warning: found the one word \"LBHD\", expected a standard marker and the "
            "capture's name for it [mnm-name-missing]\n"
            "  The marker of the line before is taken, \"Head1\", which has its entry already: the "
            "line changes nothing.\n"
            "m.mnm:3:4: warning: found \"Head1\" again, expected it once; line 1 has it "
            "[mnm-entry-shadowed]\n"
            "  The line is ignored: the marker is \"LFHD\", as the earlier one says.\n"
            "m.mnm:4:1: warning: found \"lfhd\", expected \"LFHD\" [mnm-standard-unknown]\n"
            "  The converted file has a marker of this name all the same.\n"
            "m.mnm:5:1: warning: found \"Back\", expected \"T10\" first, and then the capture's "
            "name [mnm-standard-unknown]\n"
            "  The converted file has a marker of this name all the same.\n"
            "m.mnm:6:1: warning: found \"LFHD\" again, expected it once; line 1 has it "
            "[mnm-standard-twice]\n"
            "  A capture with \"Head1\" and \"Ear\" becomes a file with two markers of this name.\n"
            "m.mnm: 5 warnings\n");
  EXPECT_EQ(result.status, 1);
}

TEST_F(MapLintTest, IsOneLineForEachFileWithoutFindings) {
  const ProgramResult result = Orvane({"map", "lint", "m.mnm", "mapped"});
  EXPECT_EQ(result.output, "m.mnm: clean: 2 markers mapped\nmapped.TRC: clean: 2 markers\n");
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(MapLintTest, ComparesTheEntriesWithTheMarkersOfACapture) {
  const ProgramResult result = Orvane({"map", "lint", "m.mnm", "take.trc"});
  EXPECT_EQ(result.output,
            "m.mnm:2:6: warning: found \"head2\", expected \"Head2\" [mnm-entry-unused]\n"
            "  The capture has no such marker: the line changes nothing.\n"
            "m.mnm: 1 warning\n"
            "take.trc:4:21: warning: found \"Head2\", expected \"head2\", as in m.mnm "
            "[mnm-marker-unmapped]\n"
            "  The marker is dropped.\n"
            "take.trc:4:29: warning: found \"Right Head\", expected a name of one word, which a "
            "mapping can name [mnm-marker-unmappable]\n"
            "  The marker is dropped.\n"
            "take.trc:4:42: warning: found \"Toe\", expected an entry for it in m.mnm "
            "[mnm-marker-unmapped]\n"
            "  The marker is dropped.\n"
            "take.trc: 3 warnings\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(Orvane({"map", "lint", "m.mnm", "take.trc", "--max-severity", "warning"}).status, 0);
}

TEST_F(MapLintTest, WritesBothFilesAsJson) {
  const json report = json::parse(Orvane({"map", "lint", "m.mnm", "take.trc", "--json"}).output);
  ASSERT_EQ(report["files"].size(), 2U);
  EXPECT_EQ(report["files"][0]["file_type"], "MNM");
  EXPECT_EQ(report["files"][1]["file_type"], "TRC");
  EXPECT_EQ(report["files"][1]["totals"]["mnm-marker-unmapped"], 2);
}

TEST_F(MapLintTest, NeedsReadableFiles) {
  const ProgramResult no_mapping = Orvane({"map", "lint", "none.mnm", "take.trc"});
  EXPECT_EQ(no_mapping.error, "orvane: none.mnm: No such file or directory\n");
  EXPECT_EQ(no_mapping.status, 3);
  EXPECT_EQ(Orvane({"map", "lint", "m.mnm", "none.trc"}).error,
            "orvane: none.trc: No such file or directory\n");
  Write("bad.trc", "PathFileType 4 (X/Y/Z)\n");
  const ProgramResult refused = Orvane({"map", "lint", "m.mnm", "bad.trc"});
  EXPECT_THAT(refused.error, HasSubstr("(X/Y/Z)\" header state"));
  EXPECT_EQ(refused.status, 1);
  Write("empty.trc", "");
  EXPECT_THAT(Orvane({"map", "lint", "m.mnm", "empty.trc"}).error,
              HasSubstr("empty.trc: The file is empty\n"));
}

TEST_F(MapLintTest, TellsOfTheMappingWhateverBecomesOfTheCapture) {
  Write("m.mnm", "LFHD\tHead1\nlfhd\tHead2\n");
  Write("bad.trc", "PathFileType 4 (X/Y/Z)\n");
  const ProgramResult alone = Orvane({"map", "lint", "m.mnm"});
  for (const auto& [capture, status] : {std::pair{"bad.trc", 1}, {"none.trc", 3}}) {
    const ProgramResult result = Orvane({"map", "lint", "m.mnm", capture});
    EXPECT_EQ(result.output, alone.output);
    EXPECT_EQ(result.status, status);
    EXPECT_THAT(result.error, HasSubstr(capture));
  }
}

TEST_F(MapLintTest, TakesNamesForThoseOfTheMapping) {
  Write("m.mnm", "LFHD\twalker:LFHD\nLBHD\twalker:LBHD\n");
  Write("take.trc",
        test::TrcText{.markers = {"anna:LFHD", "Toe"}, .frames = {{"1\t2\t3", "1\t2\t3"}}}.Text());
  EXPECT_THAT(Orvane({"map", "lint", "m.mnm", "take.trc"}).output,
              HasSubstr("[mnm-fits-nothing]\n  Every marker is dropped; --names subject takes 1 "
                        "name for those of the mapping.\n"));
  const ProgramResult result = Orvane({"map", "lint", "m.mnm", "take.trc", "--names", "subject"});
  EXPECT_EQ(result.error,
            "orvane: take.trc: note: 1 name of \"anna:\" is taken for that of \"walker:\"\n");
  EXPECT_THAT(result.output, StartsWith("m.mnm:2:6: warning: found \"walker:LBHD\", expected a "
                                        "marker of the capture [mnm-entry-unused]\n"));
  EXPECT_THAT(result.output, HasSubstr("take.trc:4:25: warning: found \"Toe\", "));
  EXPECT_THAT(result.output, EndsWith("take.trc: 1 warning\n"));
  EXPECT_EQ(Orvane({"map", "lint", "m.mnm", "--names", "case"}).status, 2);
}

TEST_F(MapLintTest, TakesBlanksAndUnderscoresForColons) {
  Write("m.mnm", "LFHD\twalker:LFHD\nLBHD\twalker:LBHD\n");
  const auto lint = [this](const std::vector<std::string>& markers) {
    const test::TrcText text{.markers = markers, .frames = {{"1\t2\t3", "1\t2\t3"}}};
    Write("take.trc", text.Text());
    return Orvane({"map", "lint", "m.mnm", "take.trc", "--names", "subject"});
  };
  const ProgramResult result = lint({"walker LFHD", "walker_LBHD"});
  EXPECT_EQ(result.error,
            "orvane: take.trc: note: 1 name of \"walker \" is taken for that of \"walker:\", and 1 "
            "name of \"walker_\" is taken for that of \"walker:\"\n");
  EXPECT_EQ(result.output, "m.mnm: clean: 2 markers mapped\ntake.trc: clean: 2 markers\n");
  EXPECT_THAT(lint({"walker LFHD", "walker_LFHD"}).error,
              HasSubstr("\"walker:LFHD\" of the mapping could be \"walker LFHD\" or "
                        "\"walker_LFHD\"\n"));
}

TEST_F(MapLintTest, RefusesNamesThatCouldBeSeveral) {
  Write("m.mnm", "LFHD\twalker:LFHD\n");
  Write("take.trc",
        test::TrcText{.markers = {"a:LFHD", "b:LFHD"}, .frames = {{"1\t2\t3", "1\t2\t3"}}}.Text());
  const ProgramResult result = Orvane({"map", "lint", "m.mnm", "take.trc", "--names", "subject"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "m.mnm: clean: 1 marker mapped\n");
  EXPECT_THAT(result.error, HasSubstr("\"walker:LFHD\" of the mapping could be \"a:LFHD\" or "
                                      "\"b:LFHD\"\n"));
}

TEST_F(MapLintTest, IsAVerbOfTheVerbMap) {
  EXPECT_EQ(Orvane({"map"}).status, 2);
  const ProgramResult nameless = Orvane({"map", "lint"});
  EXPECT_EQ(nameless.error,
            "orvane: MAPPING is required\n  \"orvane map lint --help\" lists what there is.\n");
  EXPECT_EQ(nameless.status, 2);
}

TEST_F(MapLintTest, KeepsItsOutputShortHoweverOddTheFile) {
  std::string bytes;
  for (int line = 0; line < 100'000; ++line) bytes += "x" + std::to_string(line) + " y z\n";
  Write("m.mnm", bytes);
  const ProgramResult result = Orvane({"map", "lint", "m.mnm"});
  EXPECT_LT(result.output.size(), 20'000U);
  EXPECT_THAT(result.output, HasSubstr("m.mnm: and 99980 more of [mnm-rest-ignored]\n"));
}

TEST_F(MapLintTest, CheckTakesMappingsOfAFolderAndByAnyName) {
  std::filesystem::create_directory(folder_.File("folder"));
  Write("folder/a.MNM", "C7 Back\n");
  EXPECT_EQ(test::Slashed(Orvane({"check", "folder"}).output),
            "folder/a.MNM: clean: 1 marker mapped\n");
  Write("mapping.txt", "C7 Back\n");
  EXPECT_EQ(Orvane({"check", "mapping.txt", "--as", "mnm"}).output,
            "mapping.txt: clean: 1 marker mapped\n");
}

}  // namespace
