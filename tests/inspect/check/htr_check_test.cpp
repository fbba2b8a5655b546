#include "inspect/check/htr_check.h"

#include "inspect/check/htr_rules.h"
#include "tests/inspect/check/htr_rows.h"
#include "tests/support/blocks.h"
#include "tests/support/checked_bytes.h"
#include "tests/support/replaced_text.h"

namespace test {

HtrText Walk() {
  return {.segments = {{.name = "Hips",
                        .base = "0 900 0 0 0 0 100",
                        .frames = {"0 0 0 0 0 0", "10 0 0 0 0 90", "20 0 0 0 0 0"}},
                       {.name = "Spine",
                        .parent = "Hips",
                        .base = "0 100 0 0 0 0 250.5",
                        .frames = {"0 0 0 0 0 0", "0 0 0 0 0 0", "0 0 0 0 0 0"}}}};
}

std::string DamagedWalk(const std::string& from, const std::string& to) {
  return Replaced(Walk().Text(), from, to);
}

}  // namespace test

namespace {

using orvane::CheckHtr;
using test::AllTold;
using test::kHtrHeaderRows;
using test::kHtrSegmentRows;
using testing::IsEmpty;

std::vector<test::Told> ToldOf(const std::string& bytes) {
  orvane::HtrDocument document;
  test::Blocks lines(bytes, 0, 1);  // each line takes the place of the last one
  return AllTold(CheckHtr("walk.htr", lines, document).findings);
}

TEST(HtrCheck, FindsNothingInASoundFile) {
  const orvane::CheckedFile checked = test::CheckedHtr("walk.htr", test::Walk().Text());
  EXPECT_EQ(checked.file, "walk.htr");
  EXPECT_EQ(checked.kind, "HTR");
  EXPECT_EQ(checked.contents, "2 segments, 3 frames");
  EXPECT_THAT(AllTold(checked.findings), IsEmpty());
  EXPECT_THAT(ToldOf(test::DamagedWalk("DataFrameRate 30", "DataFrameRate 4800")), IsEmpty());
}

TEST(HtrCheck, TellsOfEachDamage) {
  test::ExpectTold(kHtrHeaderRows, ToldOf);
  test::ExpectTold(kHtrSegmentRows, ToldOf);
}

TEST(HtrCheck, HasADamageForEachRule) {
  std::vector<test::CheckRow> rows = kHtrHeaderRows;
  rows.insert(rows.end(), kHtrSegmentRows.begin(), kHtrSegmentRows.end());
  test::ExpectARowForEach(orvane::htr::kRules, rows);
}

}  // namespace
