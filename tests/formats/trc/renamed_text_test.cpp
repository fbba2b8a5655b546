#include "formats/trc/renamed_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "formats/trc/document.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::RenameTrcMarkers;
using test::TrcText;

// A file whose markers are called so, with a comment before the names and cells that repeat one.
std::string FileOf(const std::string& names, const std::string& line_end) {
  const TrcText text{.markers = {"a"}, .line_end = line_end};
  return text.Header() + "Frame#\tTime\t" + names + line_end + "\tTime\twalker C7\tX1\tY1\tZ1" +
         line_end + line_end + "1\t0\twalker C7\t2\t3" + line_end + "2\t0\t1\t2\t3";
}

TEST(RenamedText, HasOtherNamesAndAllElseToTheByte) {
  for (const std::string line_end : {"\n", "\r\n", "\r\r\n"}) {
    EXPECT_EQ(RenameTrcMarkers(FileOf("walker C7\t\t\tToe\t\t\t", line_end),
                               {{"walker C7", "walker:C7"}}),
              FileOf("walker:C7\t\t\tToe\t\t\t", line_end));
  }
}

TEST(RenamedText, RenamesWhatIsANameForTheReaderAlone) {
  const auto renamed = [](const std::string& names) {
    return *RenameTrcMarkers(FileOf(names, "\n"), {{"C 7", "Seventh"}, {"Time", "x"}});
  };
  EXPECT_EQ(renamed("C 7\t\t\tC 7\t\t\t"), FileOf("Seventh\t\t\tSeventh\t\t\t", "\n"));
  EXPECT_EQ(renamed("a\tC 7\tC 7\tb\t\t\t"), FileOf("a\tC 7\tC 7\tb\t\t\t", "\n"));
  EXPECT_EQ(renamed("a\t\t\tC 7"), FileOf("a\t\t\tC 7", "\n")) << "no tab behind it";
  EXPECT_EQ(renamed("C 7 \t\t\tC 77\t\t\t"), FileOf("C 7 \t\t\tC 77\t\t\t", "\n"));
}

// The line behind a comment is thrown away.
TEST(RenamedText, FindsTheNamesWhereTheReaderDoes) {
  const TrcText text{.markers = {"C 7"}, .frames = {{"1\t2\t3"}}};
  std::string file = text.Text();
  file.replace(file.find("DataRate"), 0, "# in the place of the headings\n");
  const std::optional<std::string> renamed = RenameTrcMarkers(file, {{"C 7", "C7"}});
  orvane::TRCDocument document;
  ASSERT_EQ(document.ReadBytes(renamed.value(), false), "");
  ASSERT_EQ(document.MarkerCount(), 1);
  EXPECT_EQ(document.MarkerAt(0)->Name(), "C7");
}

TEST(RenamedText, IsNotMadeOfALineThatIsReadInPieces) {
  const std::string longest(10200, 'x');
  EXPECT_TRUE(RenameTrcMarkers(FileOf("C 7\t\t\t" + longest, "\n"), {{"C 7", "C7"}}));
  EXPECT_FALSE(RenameTrcMarkers(FileOf("C 7\t\t\t" + longest, "\n"),
                                {{"C 7", "a much longer name than before"}}));
  EXPECT_FALSE(RenameTrcMarkers(FileOf("C 7\t\t\t" + longest + longest, "\n"), {{"C 7", "C7"}}));
  EXPECT_FALSE(RenameTrcMarkers(FileOf("C 7\t\t\t" + std::string(1, '\0'), "\n"), {{"C 7", "C7"}}))
      << "a NUL hides what stands behind it in the piece";
}

TEST(RenamedText, OfAFileThatEndsBeforeIsTheFile) {
  for (const std::string file : {"", "PathFileType\t4\n", "1\n2\n3\nFrame#\tTime\tC7\t"}) {
    EXPECT_EQ(RenameTrcMarkers(file, {{"C 7", "C7"}}), file);
  }
}

}  // namespace
