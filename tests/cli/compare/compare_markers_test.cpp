#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/htr_text.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::TrcText;
using testing::HasSubstr;
using testing::IsEmpty;

class CompareMarkersTest : public test::OrvaneTest {
 protected:
  CompareMarkersTest() {
    a_.markers = {"LFHD", "RFHD"};
    a_.frames = {{"0\t0\t0", "10\t0\t0"}, {"1\t0\t0", "10\t1\t0"}};
    b_ = a_;
  }

  ProgramResult Compare(std::vector<std::string> flags = {}) {
    Write("a.trc", a_.Text());
    Write("b.trc", b_.Text());
    flags.insert(flags.begin(), {"compare", "a.trc", "b.trc"});
    return Orvane(flags);
  }

  TrcText a_;
  TrcText b_;
};

TEST_F(CompareMarkersTest, PageOfFilesThatSayTheSame) {
  const ProgramResult result = Compare();
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_EQ(result.output,
            "A  a.trc\n"
            "B  b.trc\n"
            "\n"
            "  Marker               largest mm        mean mm      only in A      only in B"
            "   first beyond\n"
            "  LFHD                   0.000000       0.000000              0              0"
            "              -\n"
            "  RFHD                   0.000000       0.000000              0              0"
            "              -\n"
            "\n"
            "Difference of 2 markers in frames 1 to 2\n"
            "  Positions       0.000000 mm at the most, 0.000000 on average\n"
            "  Gaps            0 samples measured in A alone, 0 in B alone\n"
            "  Tolerance       0.001 mm: kept\n");
}

TEST_F(CompareMarkersTest, PageOfFilesThatDiffer) {
  a_.markers.push_back("SACR");
  a_.frames[0].push_back("5\t5\t5");
  a_.frames[1].push_back("5\t5\t5");
  b_.data_rate = "120";
  b_.frames[0][0] = "3\t0\t4";
  b_.frames[1][0] = "";
  b_.frames.push_back(b_.frames[0]);
  const ProgramResult result = Compare();
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("\n"
                                       "  LFHD                   5.000000       5.000000"
                                       "              1              0              1\n"));
  EXPECT_THAT(result.output, HasSubstr("\n\n"
                                       "Different contents\n"
                                       "  frame rate 60 in A, 120 in B\n"
                                       "  SACR: only in A\n"
                                       "  frame 3 only in B\n"
                                       "\n"
                                       "Difference of 2 markers in frames 1 to 2\n"
                                       "  Positions       5.000000 mm at the most, 1.666667 on "
                                       "average; LFHD in frame 1\n"
                                       "  Gaps            1 sample measured in A alone, 0 in B "
                                       "alone\n"
                                       "  Tolerance       0.001 mm: exceeded, first in frame 1 by "
                                       "LFHD\n"));
}

TEST_F(CompareMarkersTest, TheToleranceDecidesTheStatus) {
  b_.frames[0][0] = "0\t0\t2";
  EXPECT_EQ(Compare().status, 1);
  EXPECT_EQ(Compare({"--tolerance-mm", "2"}).status, 0);
}

TEST_F(CompareMarkersTest, OtherContentsAreADifferenceWithinAnyTolerance) {
  b_.markers[1] = "SACR";
  const ProgramResult result = Compare();
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("0.001 mm: kept, but the contents differ\n"));
}

TEST_F(CompareMarkersTest, NothingInCommonIsToldAsSuch) {
  b_.markers = {"SACR", "CLAV"};
  EXPECT_THAT(Compare().output,
              HasSubstr("Difference of nothing, as no marker is in both files\n"));
  b_ = a_;
  b_.first_frame = 10;
  EXPECT_THAT(Compare().output, HasSubstr("Difference of nothing, as no frame is in both files\n"));
  b_ = a_;
  a_.frames = {{"", "1\t1\t1"}};
  b_.frames = {{"1\t1\t1", ""}};
  EXPECT_THAT(Compare().output, HasSubstr("  Positions       no sample is in both files\n"
                                          "  Gaps            1 sample measured in A alone, 1 in B "
                                          "alone\n"));
}

TEST_F(CompareMarkersTest, JsonOfFilesThatDiffer) {
  a_.markers.push_back("SACR");
  a_.frames[0].push_back("5\t5\t5");
  a_.frames[1].push_back("5\t5\t5");
  b_.data_rate = "120";
  b_.frames[0][0] = "3\t0\t4";
  b_.frames[1][0] = "";
  b_.frames.push_back(b_.frames[0]);
  const ProgramResult result = Compare({"--json", "--tolerance-mm", "0.25"});
  EXPECT_EQ(result.status, 1);
  json told = json::parse(result.output);
  told.erase("findings_a");
  told.erase("findings_b");
  EXPECT_EQ(told, json::parse(R"({
    "version": 2, "file_a": "a.trc", "file_b": "b.trc", "same": false, "tolerance_mm": 0.25,
    "frames": [1, 2],
    "distance_mm": {"largest": 5, "largest_frame": 1, "largest_marker": "LFHD",
                    "mean": 1.6666666666666667},
    "only_in_a": 1, "only_in_b": 0, "first_beyond": 1, "first_beyond_marker": "LFHD",
    "structure": {"frame_rate": [60, 120], "markers": [{"name": "SACR", "only_in": "a"}],
                  "frames": [{"only_in": "b", "range": [3, 3]}]},
    "markers": [
      {"name": "LFHD", "sample_count": 1,
       "distance_mm": {"largest": 5, "largest_frame": 1, "mean": 5},
       "only_in_a": 1, "only_in_b": 0, "first_beyond": 1},
      {"name": "RFHD", "sample_count": 2,
       "distance_mm": {"largest": 0, "largest_frame": 1, "mean": 0},
       "only_in_a": 0, "only_in_b": 0, "first_beyond": null}]})"));
}

TEST_F(CompareMarkersTest, WhatIsOddInEitherFileIsTold) {
  b_.frames[1][0] = "";
  const ProgramResult result = Compare({"--json"});
  EXPECT_EQ(test::CodesIn(result.error), std::vector<std::string>{"trc-marker-gaps"});
  const json told = json::parse(result.output);
  EXPECT_THAT(told["findings_a"], IsEmpty());
  EXPECT_EQ(told["findings_b"][0]["code"], "trc-marker-gaps");
}

TEST_F(CompareMarkersTest, AFileThatIsRefusedIsTrouble) {
  b_.markers.clear();
  b_.frames.clear();
  EXPECT_EQ(Compare().status, 3);
  EXPECT_EQ(Orvane({"compare", "a.trc", "missing.trc"}).status, 3);
}

TEST_F(CompareMarkersTest, MarkersAreComparedWithMarkersAlone) {
  Write("a.trc", a_.Text());
  Write("walk.htr", test::SmallMotion());
  const ProgramResult result = Orvane({"compare", "a.trc", "walk.htr"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: walk.htr: is of another kind than a.trc\n"
            "  Motion files are compared with each other, and marker files with each other; the "
            "name of a marker file ends in .trc.\n");
}

TEST_F(CompareMarkersTest, MarkersAreNotTurned) {
  const ProgramResult result = Compare({"--tolerance-deg", "1"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: --tolerance-deg: markers are not turned\n  --tolerance-mm is for them.\n");
}

}  // namespace
