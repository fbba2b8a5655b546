#include "cli/export/exported_text.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Before the first section with frames. The bones have numbers for names.
const std::string kHead =
    "[Header]\r\nNumFrames 3\r\n[SegmentNames&Hierarchy]\r\n1\tGLOBAL\r\n2\t1\r\n"
    "[BasePosition]\r\n# ObjectName\r\n1\t0.0\t0.0\r\n2\t0.0\t0.0\r\n";

ExportedText TextOf(const std::string& bytes) {
  ExportedText text;
  text.Take(bytes);
  return text;
}

TEST(ExportedTextTest, KeepsAllButTheRowsThatFollowAnother) {
  const ExportedText text = TextOf(kHead +
                                   "[1]\r\n# Tx\r\n1\t0.5\t-2.0\r\n2\t0.5\t2.0\r\n3\t0.5\t2.0\r\n"
                                   "[2]\r\n# Tx\r\n-1\t0.5\t2.0\r\n0\t0.5\t2.0\r\n[EndOfFile]\r\n");
  EXPECT_EQ(text.Kept(), kHead +
                             "[1]\r\n# Tx\r\n1\t0.5\t-2.0\r\n"
                             "[2]\r\n# Tx\r\n-1\t0.5\t2.0\r\n[EndOfFile]\r\n");
  EXPECT_THAT(text.Rows(), ElementsAre(3, 2));
}

TEST(ExportedTextTest, KeepsEveryRowThatHoldsAWord) {
  for (const char* const word_text : {"inf", "-inf", "nan", "-nan"}) {
    const std::string word = word_text;
    const std::vector<std::string> rows = {"2\t" + word + "\t0.0\t0.0\t0.0\r\n",
                                           "2\t0.0\t0.0\t0.0\t" + word + "\r\n",
                                           "2\t0.0000000\t" + word};
    for (const std::string& row : rows) {
      const ExportedText text = TextOf(kHead + "[1]\r\n1\t0.0\r\n" + row);
      EXPECT_TRUE(text.Kept().ends_with(row)) << row;
    }
  }
}

TEST(ExportedTextTest, TakesNothingButNumbersForRows) {
  const std::vector<std::string> lines = {
      "#\r\n", "[2\r\n", "x1\t0.0\r\n",     "1]\t0.0\r\n",
      "\r\n",  "\n",     "1\t\xC3\xA4\r\n", "12345678\t\x80\r\n"};
  for (const std::string& line : lines) {
    const ExportedText text = TextOf(kHead + "[1]\r\n1\t0.0\r\n" + line + "2\t0.0\r\n");
    EXPECT_THAT(text.Rows(), ElementsAre(1, 1)) << line;
  }
}

TEST(ExportedTextTest, FindsNoRowsBeforeTheMotion) {
  EXPECT_EQ(TextOf(kHead).Kept(), kHead);
  EXPECT_THAT(TextOf(kHead).Rows(), IsEmpty());
  EXPECT_EQ(TextOf("").Kept(), "");
}

TEST(ExportedTextTest, TakesTheTextInAnyPiecesOfLines) {
  const std::string bytes = kHead + "[1]\r\n1\t0.0\r\n2\t0.0\r\n[EndOfFile]\r\n";
  ExportedText text;
  for (std::size_t start = 0; start < bytes.size();) {
    const std::size_t end = bytes.find('\n', start) + 1;
    text.Take(std::string_view(bytes).substr(start, end - start));
    start = end;
  }
  EXPECT_EQ(text.Kept(), TextOf(bytes).Kept());
  EXPECT_THAT(text.Rows(), ElementsAre(2));
  EXPECT_EQ(text.Size(), bytes.size());
}

}  // namespace
}  // namespace cli
