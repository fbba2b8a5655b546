#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "inspect/check/trc_check.h"
#include "tests/support/blocks.h"
#include "tests/support/replaced_text.h"
#include "tests/support/trc_text.h"

// What is told of a line when it depends on lines that come later.

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

// Three frames are announced, on lines 7 to 9, and stand there; more can be added.
std::string ThreeFrames() {
  return test::TrcText{
      .markers = {"LFHD", "RFHD"},
      .frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}, {"7\t8\t9", "4\t5\t6"}}}
      .Text();
}

orvane::FindingList FindingsIn(const std::string& bytes) {
  orvane::TRCDocument document;
  test::Blocks lines(bytes, 0, 1);  // each line takes the place of the last one
  return orvane::CheckTrc("walk.trc", lines, document).findings;
}

// "LINE:COLUMN CODE" of each.
std::vector<std::string> CodesIn(const std::string& bytes) {
  std::vector<std::string> codes;
  for (const orvane::Finding& finding : FindingsIn(bytes).Sorted()) {
    codes.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " +
                    std::string(finding.rule.code));
  }
  return codes;
}

TEST(TrcCheck, TellsOfBlankLinesBehindTheFramesWhenAFrameFollows) {
  const std::string followed = ThreeFrames() + "\n \t\n6\t0.000\t1\t2\t3\t4\t5\t6\n";
  const std::vector<std::string> codes = CodesIn(followed);
  EXPECT_THAT(
      codes, ElementsAre("3:7 trc-frame-count", "10:1 trc-frame-blank", "10:1 trc-marker-gaps",
                         "10:1 trc-marker-gaps", "11:1 trc-number-missing", "11:1 trc-frame-number",
                         "11:3 trc-frame-short", "12:1 trc-frame-number"));
  std::vector<std::string> and_end = codes;
  and_end.emplace_back("13:1 trc-lines-at-end");
  EXPECT_EQ(CodesIn(followed + "\n\t\n"), and_end);
}

TEST(TrcCheck, TellsOfTheEndWhereTheRestOfALongLineIsBlank) {
  const std::string tabs(10300, '\t');
  const std::string long_frame = "4\t0.000\t1\t2\t3\t4\t5\t6" + tabs + "\n";
  EXPECT_THAT(CodesIn(ThreeFrames() + long_frame), ElementsAre("10:1 trc-lines-at-end"));
  EXPECT_THAT(CodesIn(ThreeFrames() + long_frame + "5\t0.000\t1\t2\t3\t4\t5\t6\n"),
              Not(Contains("10:1 trc-lines-at-end")));
}

TEST(TrcCheck, TellsOfTheHeadingsLineUnlessAPieceOfItIsAFrameOfTabs) {
  const std::string frame = "1\t0.000\t1\t2\t3\t4\t5\t6";
  const std::string lost =
      test::Replaced(ThreeFrames(), "\t\tX1\tY1\tZ1\tX2\tY2\tZ2\n\n", frame + "\n\n");
  EXPECT_THAT(CodesIn(lost), Contains("5:1 trc-sub-header-missing"));
  const std::string tabs =
      test::Replaced(lost, frame + "\n\n", frame + std::string(10300, '\t') + "\n");
  EXPECT_THAT(CodesIn(tabs), Contains("5:1 trc-blank-line-tabs"));
  EXPECT_THAT(CodesIn(tabs), Not(Contains("5:1 trc-sub-header-missing")));
}

TEST(TrcCheck, TellsOfTheNamesLineUnlessAPieceOfItIsAFrameOfTabs) {
  const std::string again = test::Replaced(ThreeFrames(), "RFHD\t\t\t", "RFHD\t\t\tLFHD\t\t\t");
  EXPECT_THAT(CodesIn(again), Contains("4:27 trc-column-repeated-blank"));
  const std::string two_pieces =
      test::Replaced(again, "LFHD\t\t\t\n", "LFHD\t\t\t" + std::string(10300, '\t') + "\n");
  EXPECT_THAT(CodesIn(two_pieces), Contains("4:27 trc-column-repeated-blank"));
  const std::string three_pieces =
      test::Replaced(again, "LFHD\t\t\t\n", "LFHD\t\t\t" + std::string(20500, '\t') + "\n");
  EXPECT_THAT(CodesIn(three_pieces), Contains("4:1 trc-blank-line-tabs"));
  EXPECT_THAT(CodesIn(three_pieces), Not(Contains("4:27 trc-column-repeated-blank")));
  EXPECT_THAT(CodesIn(three_pieces), Contains("3:9 trc-marker-count"));
}

TEST(TrcCheck, TellsOfALongLineOfNamesInTheOrderOfReading) {
  const std::string name = test::Replaced(ThreeFrames(), "RFHD\t\t\t\n",
                                          "\rRFHD\t\t\t" + std::string(10300, '\t') + "\n");
  std::vector<std::string> of_name;
  for (const std::string& code : CodesIn(name)) {
    if (code.starts_with("4:20 ")) of_name.push_back(code);
  }
  EXPECT_THAT(of_name, ElementsAre("4:20 trc-carriage-return", "4:20 trc-name-with-blank"));
}

TEST(TrcCheck, CountsAllNarrowFramesAndKeepsTheFirst) {
  test::TrcText text{.markers = {"LFHD", "RFHD"}, .frame_count = 60};
  for (int frame = 1; frame <= 600; ++frame) {
    const bool is_narrow = frame % 11 == 0;
    const std::string cells = frame % 22 == 0 ? "4\t5\t" : "4\t5\t\t";
    text.frames.push_back({"1\t2\t3", is_narrow ? cells : "4\t5\t6\t\t\t"});
  }
  const orvane::FindingList findings = FindingsIn(text.Text());
  const auto& total = findings.Totals().at("trc-frame-narrow");
  EXPECT_EQ(total.count, 54U);
  EXPECT_EQ(total.behind, 49U);
  std::vector<std::size_t> lines;
  for (const orvane::Finding& finding : findings.Sorted()) {
    if (finding.rule.code == "trc-frame-narrow") lines.push_back(finding.line);
  }
  std::vector<std::size_t> first;
  for (std::size_t frame = 11; frame <= 25 * 11; frame += 11) first.push_back(6 + frame);
  EXPECT_EQ(lines, first);
}

}  // namespace
