#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// What is said of the marker file that a mapping is made for.

namespace {

using nlohmann::json;
using test::ProgramResult;
using testing::ElementsAre;
using testing::IsEmpty;

// The standard markers that have to be picked.
constexpr const char* kNeeded[] = {"LFHD", "LBHD", "RBHD", "RFHD", "C7",   "CLAV", "STRN", "LSHO",
                                   "LELB", "LWRA", "LWRB", "LFIN", "RSHO", "RELB", "RWRA", "RWRB",
                                   "RFIN", "T10",  "LFWT", "LBWT", "RBWT", "RFWT", "LKNE", "LANK",
                                   "LMT5", "LTOE", "RKNE", "RANK", "RMT5", "RTOE"};

class MapReportTest : public test::OrvaneTest {
 protected:
  MapReportTest() {
    test::TrcText text;
    std::string picks;
    for (const char* code : kNeeded) {
      text.markers.emplace_back(code);
      picks += std::string(code) + " " + code + "\n";
    }
    text.frames = {test::TrcText::Frame(text.markers.size(), "1\t2\t3")};
    text.units = unit_;
    Write("walk.trc", text.Text());
    Write("picks", picks);
  }

  ProgramResult Create(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> arguments = {"map",     "create",  "walk.trc", "-o",
                                          "set.mnm", "--picks", "picks"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Orvane(arguments);
  }

  const std::string unit_ = "parsec";
  const std::string warning_ =
      "orvane: walk.trc: warning: The unit is unknown: \"parsec\" (line 3, column 12). "
      "Millimeters are taken; mm, cm, m, in, ft and yd are known. [trc-unit-unknown]\n";
};

TEST_F(MapReportTest, TellsWhatIsOddInTheMarkerFile) {
  const ProgramResult result = Create();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, warning_);
  EXPECT_EQ(result.output, "set.mnm: 30 markers mapped\n");
}

TEST_F(MapReportTest, WithoutAReportNothingIsSaidOfIt) {
  const ProgramResult result = Create({"--no-report"});
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_EQ(result.output, "set.mnm: 30 markers mapped\n  Report  none: --no-report\n");
}

TEST_F(MapReportTest, StrictRefusesUnlessItIsAllowed) {
  const ProgramResult result = Create({"--strict"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            warning_ + "orvane: --strict: nothing was written because of trc-unit-unknown\n");
  EXPECT_THAT(Names(), ElementsAre("picks", "walk.trc"));
  EXPECT_EQ(Create({"--strict", "--allow", "trc-unit-unknown"}).status, 0);
}

TEST_F(MapReportTest, WritesTheReport) {
  EXPECT_EQ(Create({"--report", "report.json"}).status, 0);
  const json report = json::parse(Read("report.json"))["files"][0];
  EXPECT_EQ(report["action"], "inspect");
  EXPECT_EQ(report["findings"][0]["code"], "trc-unit-unknown");
  EXPECT_EQ(Create({"--force", "--report", "picks"}).status, 2);
}

TEST_F(MapReportTest, WritesJson) {
  const ProgramResult result = Create({"--json"});
  EXPECT_EQ(result.status, 0);
  json document = json::parse(result.output);
  EXPECT_EQ(document["findings"][0]["code"], "trc-unit-unknown");
  document.erase("findings");
  EXPECT_EQ(
      document,
      json({{"version", 2}, {"file", "walk.trc"}, {"mapping", "set.mnm"}, {"markers_mapped", 30}}));
}

}  // namespace
