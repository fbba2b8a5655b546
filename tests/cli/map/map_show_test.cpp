#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::TrcText;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class MapShowTest : public test::OrvaneTest {
 protected:
  MapShowTest() {
    Write("walker.mnm", "HAND\twalker:H1\nLBHD\twalker:LBHD\nLFHD\twalker:LFHD\n");
    TrcText text;
    text.markers = {"anna:LFHD", "anna:Lbhd", "walker:H1", "anna:X"};
    text.frames = {{"1\t2\t3", "1\t2\t3", "1\t2\t3", ""}, {"1\t2\t3", "", "1\t2\t3", ""}};
    Write("take.trc", text.Text());
    Write("mixed.mnm", "LBHD\tLBHD\nLFHD\tLFHD\nHAND\tH2\n");
  }

  ProgramResult Show(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"map", "show"});
    return Orvane(arguments);
  }
};

TEST_F(MapShowTest, TableIsInTheOrderOfTheCreatorWithTheOthersBehind) {
  const ProgramResult result = Show({"walker.mnm", "--no-report"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output,
              StartsWith("Standard  Description                            Marker\n"
                         "LFHD      Left front head marker                 walker:LFHD\n"
                         "LBHD      Left back head marker                  walker:LBHD\n"
                         "RBHD      Right back head marker                 missing, and needed\n"));
  EXPECT_THAT(result.output,
              EndsWith("RTOE      Right toe marker                       missing, and needed\n"
                       "HAND      no standard marker                     walker:H1\n"
                       "3 markers mapped, 28 needed ones missing\n"));
}

TEST_F(MapShowTest, TellsWhichTheFileHasAndHowCompleteTheyAre) {
  const ProgramResult result = Show({"mixed.mnm", "take.trc", "--names", "subject", "--no-report"});
  EXPECT_EQ(result.error,
            "orvane: take.trc: note: 2 names of \"anna:\" are taken for those without a subject\n");
  EXPECT_THAT(result.output, HasSubstr("Marker               In the file  Complete\n"
                                       "LFHD      Left front head marker                 LFHD     "
                                       "            anna:LFHD     100.0 %\n"
                                       "LBHD      Left back head marker                  LBHD     "
                                       "            anna:Lbhd      50.0 %\n"));
  EXPECT_THAT(result.output, EndsWith("H2                   -                   -\n"
                                      "3 markers mapped, 28 needed ones missing; 2 of them in "
                                      "take.trc\n"));
}

TEST_F(MapShowTest, WithoutTheFlagNamesAreThoseOfTheFile) {
  EXPECT_THAT(Show({"walker.mnm", "take.trc"}).output, EndsWith("; 1 of them in take.trc\n"));
}

TEST_F(MapShowTest, TellsWhatIsOddInBothFiles) {
  const ProgramResult result = Show({"walker.mnm", "take.trc", "--report", "all.json"});
  EXPECT_THAT(result.error, HasSubstr("orvane: walker.mnm: warning: A name of the mapping is no "
                                      "standard marker: \"HAND\""));
  EXPECT_THAT(result.error, HasSubstr("[trc-marker-gaps]\n"));
  EXPECT_THAT(Read("all.json"), HasSubstr("mnm-standard-unknown"));
  EXPECT_THAT(Read("all.json"), HasSubstr("trc-marker-gaps"));
}

TEST_F(MapShowTest, RefusesWhatIsNoMappingAndWhatIsAmbiguous) {
  const ProgramResult other = Show({"take.trc"});
  EXPECT_EQ(other.status, 1);
  EXPECT_THAT(other.error, HasSubstr("[mnm-other-kind]"));
  EXPECT_THAT(other.output, IsEmpty());
  EXPECT_EQ(Show({"none.mnm"}).status, 3);
  EXPECT_EQ(Show({"walker.mnm", "none.trc"}).status, 3);
  Write("twice.mnm", "LFHD\ta:LFHD\nRFHD\tb:LFHD\n");
  const ProgramResult ambiguous = Show({"twice.mnm", "take.trc", "--names", "subject"});
  EXPECT_EQ(ambiguous.status, 1);
  EXPECT_THAT(ambiguous.error, HasSubstr("orvane: take.trc: \"anna:LFHD\" could be \"a:LFHD\" or "
                                         "\"b:LFHD\" of the mapping\n"));
  EXPECT_EQ(Show({"walker.mnm", "--names", "case"}).status, 2);
}

TEST_F(MapShowTest, JsonTellsAllOfIt) {
  const json shown =
      json::parse(Show({"mixed.mnm", "take.trc", "--names", "subject", "--json"}).output);
  EXPECT_EQ(shown["version"], 2);
  EXPECT_EQ(shown["mapping"], "mixed.mnm");
  EXPECT_EQ(shown["file"], "take.trc");
  EXPECT_EQ(shown["roles"].size(), 31U);
  EXPECT_EQ(shown["roles"][1], json::parse(R"({
    "standard": "LBHD", "description": "Left back head marker", "needed": true, "marker": "LBHD",
    "in_file": "anna:Lbhd", "coverage": 0.5})"));
  EXPECT_EQ(shown["roles"][2], json::parse(R"({
    "standard": "RBHD", "description": "Right back head marker", "needed": true, "marker": null,
    "in_file": null, "coverage": null})"));
  EXPECT_EQ(shown["roles"][30]["description"], nullptr);
  EXPECT_EQ(shown["names_taken"].size(), 2U);
  EXPECT_EQ(shown["reports"].size(), 2U);
  EXPECT_EQ(json::parse(Show({"mixed.mnm", "--json"}).output)["file"], nullptr);
}

}  // namespace
