#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/cli/convert/convert_test.h"

// Conversions that leave no marker to write, and mappings that are none.

namespace {

using nlohmann::json;
using test::ConvertTest;
using test::ProgramResult;
using test::TrcText;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr char kFitsNothing[] =
    "orvane: walk.trc: error: The mapping has no entry for any of the file's 2 markers (line 4, "
    "column 13). Every marker would be dropped, and nothing is written; --allow empty writes it "
    "all the same. [mnm-fits-nothing]\n";
constexpr char kWithoutMarkers[] =
    "orvane: bare.trc: error: The file holds no markers (line 7, column 1). Nothing is written; "
    "--allow empty writes it without markers. [trc-markers-missing]\n";

class ConvertEmptyTest : public ConvertTest {
 protected:
  ConvertEmptyTest() {
    Write("walk.trc",
          TrcText{.markers = {"Head1", "Toe"}, .frames = {{"1\t2\t3", "4\t5\t6"}}}.Text());
    Write("bare.trc", TrcText{.markers = {}, .frames = {}}.Text());
    Write("other.mnm", "LFHD\tNobody\n");
    Write("fitting.mnm", "LFHD\tHead1\nLTOE\tToe\n");
  }

  json StatusesOf(std::vector<std::string> arguments) const {
    arguments.emplace_back("--json");
    json statuses = json::array();
    const json report = json::parse(Convert(arguments).output);
    for (const json& file : report["files"]) statuses.push_back(file["status"]);
    return statuses;
  }
};

TEST_F(ConvertEmptyTest, AMappingThatFitsNobodyDeliversNothing) {
  const ProgramResult result = Convert({"walk.trc", "--mapping", "other.mnm"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, kFitsNothing);
  EXPECT_EQ(result.output,
            "File      Frames  Kept  Dropped  Dropouts  Found  Output    Status\n"
            "walk.trc       -     -        -         -  1e     walk.bvk  empty\n"
            "0 of 1 converted\n");
  EXPECT_FALSE(Exists("walk.bvk"));
}

TEST_F(ConvertEmptyTest, AFileWithoutMarkersDeliversNothingWhateverTheMapping) {
  for (const auto& mapping :
       {std::vector<std::string>{}, {"--mapping", "other.mnm"}, {"--mapping", "fitting.mnm"}}) {
    std::vector<std::string> arguments = {"bare.trc"};
    arguments.insert(arguments.end(), mapping.begin(), mapping.end());
    const ProgramResult result = Convert(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.error, kWithoutMarkers);
    EXPECT_THAT(result.output, EndsWith("bare.bvk  empty\n0 of 1 converted\n"));
    EXPECT_FALSE(Exists("bare.bvk"));
  }
}

TEST_F(ConvertEmptyTest, WhatElseIsOddInAFileThatFitsNothingIsNotTold) {
  Write("walk.trc",
        TrcText{.markers = {"Head1", "Toe"}, .frames = {{"1\t2\t3", "4x5\t5\t6"}, {"1\t2\t3", ""}}}
            .Text());
  EXPECT_EQ(Convert({"walk.trc", "--mapping", "other.mnm"}).error, kFitsNothing);
  const ProgramResult allowed =
      Convert({"walk.trc", "--mapping", "other.mnm", "--allow", "empty", "--quiet"});
  EXPECT_THAT(allowed.error, HasSubstr("[trc-number-unreadable]"));
}

TEST_F(ConvertEmptyTest, InABatchTheOthersAreConverted) {
  const std::vector<std::string> arguments = {"bare.trc", "walk.trc", "--mapping", "fitting.mnm"};
  const ProgramResult result = Convert(arguments);
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("bare.bvk  empty\n"));
  EXPECT_THAT(result.output, HasSubstr("walk.bvk  converted\n"));
  EXPECT_THAT(result.output, EndsWith("1 of 2 converted\n"));
  EXPECT_FALSE(Exists("bare.bvk"));
  EXPECT_TRUE(Exists("walk.bvk"));
}

TEST_F(ConvertEmptyTest, KeepBrokenDeliversItAndIsNotContent) {
  for (const auto& files : {std::vector<std::string>{"walk.trc"}, {"walk.trc", "bare.trc"}}) {
    std::vector<std::string> arguments = files;
    arguments.insert(arguments.end(), {"--mapping", "other.mnm", "--keep-broken", "--force"});
    const ProgramResult result = Convert(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("warning: The mapping has no entry for any of the file's 2 "
                                        "markers (line 4, column 13). No marker is written. "));
    EXPECT_THAT(result.output, HasSubstr("walk.bvk  empty\n"));
    EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("$NumMarkers 0\n"));
  }
  EXPECT_TRUE(Exists("bare.bvk"));
}

TEST_F(ConvertEmptyTest, AllowEmptyTakesItForConverted) {
  Write("nothing.mnm", "");
  for (const std::string mapping : {"other.mnm", "nothing.mnm"}) {
    for (const auto& flags : {std::vector<std::string>{}, {"--strict"}}) {
      std::vector<std::string> arguments = {"walk.trc", "bare.trc", "--mapping", mapping,
                                            "--allow",  "empty",    "--force"};
      arguments.insert(arguments.end(), flags.begin(), flags.end());
      const ProgramResult result = Convert(arguments);
      EXPECT_EQ(result.status, 0) << result.error;
      EXPECT_THAT(result.error, HasSubstr("warning: The mapping has no ent"));
      EXPECT_THAT(result.output, EndsWith("2 of 2 converted\n"));
      EXPECT_THAT(ReadText("walk.bvk"), HasSubstr("$NumMarkers 0\n"));
    }
  }
}

TEST_F(ConvertEmptyTest, AllowTakesCodesBesideWithStrictAlone) {
  EXPECT_EQ(Convert({"walk.trc", "--allow", "empty,trc-marker-gaps"}).status, 2);
  EXPECT_EQ(Convert({"walk.trc", "--allow", "nothing"}).status, 2);
  EXPECT_EQ(Convert({"walk.trc", "--allow", "empty,trc-marker-gaps", "--strict"}).status, 0);
  EXPECT_EQ(Orvane({"import", "walk.trc", "-o", "walk.glb", "--strict", "--allow", "empty"}).status,
            2);
}

TEST_F(ConvertEmptyTest, ADryRunComesToTheSame) {
  struct Case {
    std::vector<std::string> flags;
    int status;
    json statuses;
  };
  const std::vector<Case> cases = {{{}, 1, {"empty", "empty"}},
                                   {{"--keep-broken"}, 1, {"empty", "empty"}},
                                   {{"--allow", "empty"}, 0, {"planned", "planned"}}};
  for (const Case& each : cases) {
    std::vector<std::string> arguments = {"walk.trc", "bare.trc", "--mapping", "other.mnm",
                                          "--force"};
    arguments.insert(arguments.end(), each.flags.begin(), each.flags.end());
    const std::string said = Convert(arguments).error;
    arguments.emplace_back("--dry-run");
    const ProgramResult result = Convert(arguments);
    EXPECT_EQ(result.status, each.status);
    EXPECT_EQ(result.error, said);
    EXPECT_THAT(result.output, HasSubstr("  drop    Head1\n"));
    EXPECT_EQ(StatusesOf(arguments), each.statuses);
  }
}

TEST_F(ConvertEmptyTest, JsonTellsTheStatus) {
  EXPECT_EQ(StatusesOf({"walk.trc", "bare.trc", "--mapping", "other.mnm"}),
            json::array({"empty", "empty"}));
}

TEST_F(ConvertEmptyTest, WithoutAReportAnErrorSaysWhy) {
  const ProgramResult result = Convert({"walk.trc", "--mapping", "other.mnm", "--no-report"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: No marker is left to write\n"
            "  --allow empty writes the file all the same.\n");
  EXPECT_FALSE(Exists("walk.bvk"));
}

TEST_F(ConvertEmptyTest, AFileThatIsNoMappingRefusesAllBeforeAnythingIsConverted) {
  for (const auto& flags : {std::vector<std::string>{}, {"--dry-run"}, {"--keep-broken"}}) {
    std::vector<std::string> arguments = {"walk.trc", "bare.trc", "--mapping", "walk.trc"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const ProgramResult result = Convert(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error,
              "orvane: walk.trc: error: The file is a TRC file, not a mapping (line 1, column 1). "
              "Nothing is converted; \"orvane map create\" makes a mapping. [mnm-other-kind]\n");
  }
  EXPECT_THAT(Names(), ElementsAre("bare.trc", "fitting.mnm", "other.mnm", "walk.trc"));
}

TEST_F(ConvertEmptyTest, TheMappingCountsInTheTable) {
  Write("odd.mnm", "LFHD\tHead1 or so\nLTOE\tToe\n");
  const ProgramResult result = Convert({"walk.trc", "nowhere.trc", "--mapping", "odd.mnm"});
  EXPECT_THAT(result.output, HasSubstr("walk.trc          1     2        0         0  1w     "));
  EXPECT_THAT(result.output, HasSubstr("nowhere.trc       -     -        -         -  -      "));
}

TEST_F(ConvertEmptyTest, LintAndCheckSayItToo) {
  const ProgramResult linted = Orvane({"map", "lint", "other.mnm", "walk.trc"});
  EXPECT_THAT(linted.output,
              HasSubstr("walk.trc:4:13: error: found no entry for any of the file's 2 markers, "
                        "expected entries for its markers in other.mnm [mnm-fits-nothing]\n"
                        "  Every marker is dropped.\n"
                        "walk.trc:4:13: warning: found \"Head1\", "));
  EXPECT_EQ(Orvane({"map", "lint", "other.mnm", "walk.trc", "--max-severity", "warning"}).status,
            1);
  EXPECT_THAT(Orvane({"check", "--for", "convert", "bare.trc"}).output,
              StartsWith("bare.trc: error: The file holds no markers"));
}

}  // namespace
