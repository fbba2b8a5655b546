#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

#include "formats/text/files.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/replaced_text.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::ReadFile;
using test::TrcText;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class MapSuggestTest : public test::OrvaneTest {
 protected:
  void WriteMarkers(const std::vector<std::string>& names) const {
    TrcText text;
    text.markers = names;
    text.frames = {TrcText::Frame(names.size(), "1\t2\t3")};
    Write("take.trc", text.Text());
  }

  ProgramResult Suggest(std::vector<std::string> flags = {}) const {
    flags.insert(flags.begin(), {"map", "suggest", "take.trc"});
    return Orvane(flags);
  }

  // The lines of a mapping, in order of their letters.
  static std::vector<std::string> LinesOf(const std::string& mapping) {
    std::istringstream text(mapping);
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
      lines.push_back(line.substr(0, line.find('\r')));
    }
    std::sort(lines.begin(), lines.end());
    return lines;
  }
};

// The example's own names, by another subject and in another case.
class MapSuggestExampleTest : public MapSuggestTest,
                              public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(MapSuggestExampleTest, FindsAll39) {
  const std::string subject = GetParam().first;
  const bool is_small = GetParam().second;
  const std::string examples = ORVANE_SOURCE_DIR "/examples/";
  std::string capture = ReadFile(examples + "walk.trc");
  std::string mapping = ReadFile(examples + "walk.mnm");
  const auto rename = [&](std::string& text) {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
      if (text.compare(at, 7, "walker:") != 0) {
        result += text[at++];
        continue;
      }
      result += subject;
      for (at += 7; at < text.size() && text[at] != '\t'; ++at) {
        result += is_small && 'A' <= text[at] && text[at] <= 'Z'
                      ? static_cast<char>(text[at] - 'A' + 'a')
                      : text[at];
      }
    }
    text = result;
  };
  rename(capture);
  rename(mapping);
  Write("take.trc", capture);
  const ProgramResult result = Suggest({"-o", "take.mnm", "--no-report"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output, HasSubstr("39 of 41 markers suggested: take.mnm\n"));
  EXPECT_EQ(LinesOf(Read("take.mnm")), LinesOf(mapping));
}

INSTANTIATE_TEST_SUITE_P(Names, MapSuggestExampleTest,
                         testing::Values(std::pair("walker:", false), std::pair("anna:", false),
                                         std::pair("", false), std::pair("walker:", true),
                                         std::pair("B0b_2:", true)));

TEST_F(MapSuggestTest, PageTellsWhyAndWhatIsLeftOut) {
  WriteMarkers({"LFHD", "anna:C7", "rheel", "anna:LToe", "bob:LToe", "M001"});
  const ProgramResult result = Suggest();
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, StartsWith("LFHD    LFHD     the same name\n"
                                        "C7      anna:C7  the same name behind \"anna:\"\n"
                                        "RHEL    rheel    a usual name of the same place\n"
                                        "LTOE    left out: one of anna:LToe, bob:LToe\n"
                                        "No role by their names: M001\n"
                                        "Needed, and not found: LBHD, RBHD, RFHD, CLAV, "));
  EXPECT_THAT(result.output, HasSubstr("\n3 of 6 markers suggested; no mapping written\n"));
}

TEST_F(MapSuggestTest, NamesThatSayNothingAreRefused) {
  WriteMarkers({"M001", "M002"});
  const ProgramResult result = Suggest({"-o", "take.mnm"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(
      result.error,
      "orvane: take.trc: No name of its markers says what place of the body it is of for "
      "sure\n"
      "  --by-geometry goes by where the markers of a body that walks sit and move. \"orvane map "
      "create\" makes a mapping of what you know: which marker sits where.\n");
  EXPECT_FALSE(Exists("take.mnm"));
}

TEST_F(MapSuggestTest, ASubjectThatTheFileHasNotIsNamed) {
  WriteMarkers({"anna:LFHD", "bob:LFHD"});
  const ProgramResult result = Suggest({"--subject", "walker"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: take.trc: No marker is of the subject \"walker\"\n"
            "  There is anna and bob.\n");
}

TEST_F(MapSuggestTest, ASubjectMayEndWithAnUnderscore) {
  WriteMarkers({"Anna_LFHD", "Anna_RFHD"});
  EXPECT_THAT(Suggest().output, StartsWith("LFHD    Anna_LFHD  the same name behind \"Anna_\"\n"));
}

TEST_F(MapSuggestTest, ASubjectIsChosenAmongSeveral) {
  WriteMarkers({"anna:LFHD", "bob:LFHD"});
  const ProgramResult several = Suggest({"-o", "take.mnm"});
  EXPECT_EQ(several.status, 1);
  EXPECT_THAT(several.error, HasSubstr("\n  --subject NAME looks at one of its subjects alone.\n"));
  EXPECT_EQ(Suggest({"-o", "take.mnm", "--subject", "bob"}).status, 0);
  EXPECT_THAT(Read("take.mnm"), StartsWith("LFHD\tbob:LFHD\t"));
}

TEST_F(MapSuggestTest, NothingIsEverReplaced) {
  WriteMarkers({"LFHD"});
  Write("take.mnm", "mine");
  const ProgramResult taken = Suggest({"-o", "take.mnm"});
  EXPECT_EQ(taken.status, 3);
  EXPECT_EQ(taken.error, "orvane: take.mnm: File exists\n  It is kept; give -o another name.\n");
  EXPECT_EQ(Read("take.mnm"), "mine");
  EXPECT_EQ(Suggest({"-o", "take.mnm", "--force"}).status, 2);
  EXPECT_EQ(Suggest({"-o", "take.trc"}).status, 2);
}

TEST_F(MapSuggestTest, StrictTakesNoFileWithAWarning) {
  TrcText text;
  text.markers = {"LFHD"};
  text.frames = {{"1\tx\t3"}};
  Write("take.trc", text.Text());
  EXPECT_EQ(Suggest({"-o", "take.mnm", "--strict"}).status, 1);
  EXPECT_FALSE(Exists("take.mnm"));
  EXPECT_EQ(Suggest({"-o", "take.mnm"}).status, 0);
}

TEST_F(MapSuggestTest, JsonTellsAllOfIt) {
  WriteMarkers({"LFHD", "anna:C7", "rheel", "anna:CLAV", "bob:CLAV", "M001", "a b"});
  const ProgramResult result = Suggest({"--json"});
  json told = json::parse(result.output);
  EXPECT_THAT(told["missing"].size(), 27U);
  EXPECT_EQ(told["missing"][0], "LBHD");
  told.erase("missing");
  told.erase("findings");
  EXPECT_EQ(told, json::parse(R"({
    "version": 2, "file": "take.trc", "mapping": null,
    "suggested": [{"standard": "LFHD", "marker": "LFHD", "reason": "same"},
                  {"standard": "C7", "marker": "anna:C7", "reason": "subject"},
                  {"standard": "RHEL", "marker": "rheel", "reason": "synonym"}],
    "ambiguous": [{"standard": "CLAV", "markers": ["anna:CLAV", "bob:CLAV"]}],
    "without_role": ["M001"], "unmappable": ["a b"], "subjects": ["anna", "bob"]})"));
}

// The example with names that say nothing.
class MapSuggestByGeometryTest : public MapSuggestTest {
 protected:
  MapSuggestByGeometryTest() {
    std::string capture = ReadFile(ORVANE_SOURCE_DIR "/examples/walk.trc");
    for (int number = 1;; ++number) {
      const std::size_t at = capture.find("walker:");
      if (at == std::string::npos) break;
      capture.replace(at, capture.find('\t', at) - at, "M" + std::to_string(100 + number));
    }
    Write("take.trc", capture);
  }
};

TEST_F(MapSuggestByGeometryTest, FindsWhatIsSureAndTellsWhy) {
  const ProgramResult result = Suggest({"--by-geometry", "-o", "take.mnm", "--no-report"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output,
              StartsWith("LFHD    M101  front left of the four markers of the head\n"
                         "LBHD    M102  back left of the four markers of the head\n"));
  EXPECT_THAT(result.output,
              HasSubstr("\nLeft out: the left elbow: the two are in front of each other, so that "
                        "none is the outer one\n"));
  EXPECT_THAT(result.output,
              HasSubstr("\nNo role by where they sit: M115, M116, M121, M122, M140, M141\n"
                        "Needed, and not found: LELB, RELB\n"
                        "35 of 41 markers suggested: take.mnm\n"));
  EXPECT_THAT(Read("take.mnm"), StartsWith("LFHD\tM101\t"));
}

TEST_F(MapSuggestByGeometryTest, OnlyOnAsking) {
  EXPECT_EQ(Suggest().status, 1);
  EXPECT_EQ(Suggest({"--by-geometry", "--subject", "anna"}).status, 2);
}

TEST_F(MapSuggestByGeometryTest, JsonTellsTheReasonInWords) {
  const ProgramResult result = Suggest({"--by-geometry", "--json", "--no-report"});
  const json told = json::parse(result.output);
  EXPECT_EQ(told["suggested"].size(), 35U);
  EXPECT_EQ(told["suggested"][0],
            json::parse(R"({"standard": "LFHD", "marker": "M101", "reason": "geometry",
                            "words": "front left of the four markers of the head"})"));
  EXPECT_EQ(told["unsure"][0]["part"], "the left elbow");
  EXPECT_EQ(told["ambiguous"], json::array());
  EXPECT_EQ(told["missing"], json::parse(R"(["LELB", "RELB"])"));
}

TEST_F(MapSuggestByGeometryTest, ANameOfTwoMarkersOrWithBlanksIsNotSuggested) {
  std::string capture = Read("take.trc");
  capture.replace(capture.find("M101"), 4, "M 1");
  Write("take.trc", capture);
  const ProgramResult result = Suggest({"--by-geometry", "--no-report"});
  EXPECT_THAT(result.output, StartsWith("LBHD    M102"));
  EXPECT_THAT(result.output, HasSubstr("\nNames that no mapping can hold: M 1\n"));
  EXPECT_THAT(result.output, HasSubstr("\n34 of 41 markers suggested"));
}

TEST_F(MapSuggestByGeometryTest, WhereNobodyWalksItSaysWhatWouldHelp) {
  WriteMarkers({"M001", "M002"});
  const ProgramResult result = Suggest({"--by-geometry", "-o", "take.mnm"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(
      result.error,
      "orvane: take.trc: Nobody in it walks as far as two steps\n"
      "  A capture says most in which one body with markers from head to foot walks forward over "
      "the floor, two steps or more. \"orvane map create\" makes a mapping of what you know: "
      "which marker sits where.\n");
  EXPECT_FALSE(Exists("take.mnm"));
}

}  // namespace
