#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// The standard markers that have to be picked, without sticks, and those that may be skipped.
const std::vector<std::string> kNeeded = {
    "LFHD", "LBHD", "RBHD", "RFHD", "C7",   "CLAV", "STRN", "LSHO", "LELB", "LWRA",
    "LWRB", "LFIN", "RSHO", "RELB", "RWRA", "RWRB", "RFIN", "T10",  "LFWT", "LBWT",
    "RBWT", "RFWT", "LKNE", "LANK", "LMT5", "LTOE", "RKNE", "RANK", "RMT5", "RTOE"};

// A marker file with a marker "m-CODE" for every code.
std::string MarkerFile(const std::vector<std::string>& codes) {
  test::TrcText text;
  for (const std::string& code : codes) text.markers.push_back("m-" + code);
  text.frames = {test::TrcText::Frame(codes.size(), "1\t2\t3")};
  return text.Text();
}

// The table that picks "m-CODE" for every code.
std::string Table(const std::vector<std::string>& codes) {
  std::string table;
  for (const std::string& code : codes) table += code + "\tm-" + code + "\n";
  return table;
}

std::vector<std::string> WithSticks() {
  std::vector<std::string> codes = kNeeded;
  std::replace(codes.begin(), codes.end(), std::string("LWRA"), std::string("LWRE"));
  std::replace(codes.begin(), codes.end(), std::string("LWRB"), std::string("LWRI"));
  std::replace(codes.begin(), codes.end(), std::string("RWRA"), std::string("RWRE"));
  std::replace(codes.begin(), codes.end(), std::string("RWRB"), std::string("RWRI"));
  return codes;
}

std::string MappingOf(const std::vector<std::string>& codes) {
  std::string mapping;
  for (const std::string& code : codes) mapping += code + "\tm-" + code + "\t\n";
  return mapping;
}

class MapCreateTest : public test::OrvaneTest {
 protected:
  ProgramResult Create(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> arguments = {"map",     "create",  "walk.trc", "-o",
                                          "set.mnm", "--picks", "picks"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Orvane(arguments);
  }

  // Nothing is left but what the test wrote.
  void ExpectNothingWritten() const { EXPECT_THAT(Names(), ElementsAre("picks", "walk.trc")); }
};

TEST_F(MapCreateTest, WritesTheMappingThatTheTableAsksFor) {
  Write("walk.trc", MarkerFile(kNeeded));
  Write("picks", "# a comment\n\n" + Table(kNeeded) + "LILB -\n");
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.output, "set.mnm: 30 markers mapped\n");
  EXPECT_EQ(ReadText("set.mnm"), MappingOf(kNeeded));
  EXPECT_THAT(Names(), ElementsAre("picks", "set.mnm", "walk.trc"));
}

TEST_F(MapCreateTest, TakesOptionalMarkersAndSticks) {
  std::vector<std::string> codes = WithSticks();
  codes.insert(std::find(codes.begin(), codes.end(), "LWRE"), "LILB");
  Write("walk.trc", MarkerFile(codes));
  Write("picks", Table(codes));
  const ProgramResult result = Create({"--left-stick", "--right-stick", "--quiet"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(ReadText("set.mnm"), MappingOf(codes));
}

TEST_F(MapCreateTest, OfAFileThatIsNoTableOneThingIsTold) {
  Write("walk.trc", MarkerFile(kNeeded));
  std::string poem = "a poem\nof many\nlines\n";
  Write("picks", poem);
  const std::string count = std::to_string(kNeeded.size() + 2);
  EXPECT_EQ(Create().error, "orvane: picks: line 1: a is no standard marker\n  And " + count +
                                " further problems. Is it a table of picks?\n");
  Write("picks", MarkerFile(kNeeded));
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "orvane: picks: The file is a TRC file, not a table of picks\n");
  ExpectNothingWritten();
}

TEST_F(MapCreateTest, OfATableOfOtherMarkersTenThingsAreTold) {
  std::vector<std::string> codes = kNeeded;
  for (std::string& code : codes) code += "x";
  Write("walk.trc", MarkerFile(codes));
  Write("picks", Table(kNeeded));
  const std::string error = Create().error;
  EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 11);
  EXPECT_THAT(error, testing::EndsWith("\n  And " + std::to_string(kNeeded.size() - 10) +
                                       " further problems. Is it the table of this file?\n"));
  EXPECT_THAT(error, StartsWith("orvane: picks: line 1: there is no marker m-LFHD\n"
                                "orvane: picks: line 2: there is no marker m-LBHD\n"));
}

TEST_F(MapCreateTest, NamesAllThatIsWrongWithTheTableAtOnce) {
  std::vector<std::string> codes = kNeeded;
  Write("walk.trc", MarkerFile(codes));
  codes.erase(codes.begin());  // LFHD
  Write("picks", Table(codes) +
                     "FOO m-C7\nC7 m-C7\nLILB m-none\nSACR m-C7\nRILB two words\nLKNI\n"
                     "LWRE m-LFHD\nRBWT -\n");
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 1);
  for (const char* complaint : {
           "picks: line 30: FOO is no standard marker",
           "picks: line 31: C7 is there already, on line 4",
           "picks: line 32: there is no marker m-none",
           "is to be picked for C7 too",
           "picks: line 34: a name with blanks cannot be mapped: two words",
           "picks: line 35: LKNI has no marker; - skips it",
           "picks: line 36: LWRE is not asked for; --left-stick and --right-stick decide that",
           "picks: LFHD cannot be skipped, and there is no marker for it",
       }) {
    EXPECT_THAT(result.error, HasSubstr(complaint));
  }
  ExpectNothingWritten();
}

TEST_F(MapCreateTest, KeepsAFileThatExists) {
  Write("walk.trc", MarkerFile(kNeeded));
  Write("picks", Table(kNeeded));
  Write("set.mnm", "mine");
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, HasSubstr("--force"));
  EXPECT_EQ(ReadText("set.mnm"), "mine");
  EXPECT_EQ(Create({"--force"}).status, 0);
  EXPECT_EQ(ReadText("set.mnm"), MappingOf(kNeeded));
}

TEST_F(MapCreateTest, DoesNotReplaceWhatItReads) {
  Write("walk.trc", MarkerFile(kNeeded));
  Write("picks", Table(kNeeded));
  for (const std::string name : {"walk.trc", "picks"}) {
    const ProgramResult result =
        Orvane({"map", "create", "walk.trc", "-o", "./" + name, "--picks", "picks", "--force"});
    EXPECT_EQ(result.status, 2) << name;
    EXPECT_EQ(result.error, "orvane: ./" + name + ": is an input, and would be an output too\n");
  }
  EXPECT_EQ(Read("walk.trc"), MarkerFile(kNeeded));
  EXPECT_EQ(Read("picks"), Table(kNeeded));
}

TEST_F(MapCreateTest, SaysWhyTheMarkerFileIsRefused) {
  Write("walk.trc", "PathFileType\t4\t(X/Y/W)\twalk.trc\n");
  Write("picks", Table(kNeeded));
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("(X/Y/Z)"));
  ExpectNothingWritten();
}

TEST_F(MapCreateTest, SaysWhichFileCannotBeRead) {
  Write("picks", Table(kNeeded));
  EXPECT_EQ(Create().status, 3);
  Write("walk.trc", MarkerFile(kNeeded));
  std::filesystem::remove(folder_.File("picks"));
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, HasSubstr("picks: No such file"));
}

TEST_F(MapCreateTest, RefusesNamesThatNoLineOfAMappingHolds) {
  std::vector<std::string> codes = kNeeded;
  Write("walk.trc", MarkerFile(codes));
  Write("picks", Table(codes) + "LILB " + std::string(1020, 'x') + "\nRILB two\vwords\n");
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("line 31: a name of more than a thousand letters cannot be"));
  EXPECT_THAT(result.error, HasSubstr("line 32: a name with blanks cannot be mapped"));
  ExpectNothingWritten();
}

TEST_F(MapCreateTest, WantsItsArguments) {
  EXPECT_EQ(Orvane({"map"}).status, 2);
  const ProgramResult result = Orvane({"map", "create", "walk.trc"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, HasSubstr("orvane map create --help"));
}

}  // namespace
