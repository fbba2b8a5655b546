#include "formats/trc/turned_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "formats/trc/document.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::TRCDocument;
using orvane::TurnZUp;
using test::TrcText;

// The only frame of a file of two markers, as `samples` and turned; `behind` ends its line.
std::string Frame(const std::string& samples) {
  TrcText text{.markers = {"a", "b"}};
  return text.Text() + "1\t0.000" + samples + "\n";
}

TEST(TurnedText, HasTheCellsInOtherPlacesAndOneWithTheOtherSign) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"\t1.50\t2.25\t3\t4\t5\t6", "\t1.50\t3\t-2.25\t4\t6\t-5"},
      {"\t1\t-2\t3\t4\t+5\t6", "\t1\t3\t2\t4\t6\t-5"},
      {"\t1\t0\t3\t4\t-0\t6", "\t1\t3\t-0\t4\t6\t0"},
      {"\t1\t-0.000\t3\t4\t.5\t6", "\t1\t3\t0.000\t4\t6\t-.5"},
      {"\t1\t2e-3\t3\t4\t-1E+20\t6", "\t1\t3\t-2e-3\t4\t6\t1E+20"},
      {"\t1\t 2 \t3\t4\t  -5\t6", "\t1\t3\t -2 \t4\t6\t  5"},
      {"\t\t\t\t4\t5\t6", "\t\t\t\t4\t6\t-5"},
      {"\t \t \t \t4\t5\t6", "\t \t \t \t4\t6\t-5"},
      {"\t1\t\t3\t4\tNaN\t6", "\t1\t3\t\t4\t6\tNaN"},
      {"\t1\t--2\t3\t4\t-x\t6", "\t1\t3\t--2\t4\t6\t-x"},
      {"\t1\t2\t3\t4\t5", "\t1\t3\t-2\t4\t\t-5"},
      {"\t1\t2\t3\t4", "\t1\t3\t-2\t4"},
      {"\t1\t2\t3", "\t1\t3\t-2"},
      {"\t1\t2\t3\t4\t5\t6\t7\t8\t9", "\t1\t3\t-2\t4\t6\t-5\t7\t9\t-8"},
      {"\t1\t2\t3\t4\t5\t6\t", "\t1\t3\t-2\t4\t6\t-5\t"},
      {"", ""}};
  for (const auto& [samples, turned] : rows) EXPECT_EQ(TurnZUp(Frame(samples)), Frame(turned));
}

TEST(TurnedText, HasAllElseToTheByte) {
  const std::string header =
      "PathFileType\t4\t(X/Y/Z)\ta.trc\r\n1\t2\t3\t4\t5\n60\t60\t1\t1\tmm\t60\t1\t1\n"
      "Frame#\tTime\ta\t\t\t\n\t\tX1\tY1\tZ1\n";
  EXPECT_EQ(TurnZUp(header + "\r\n1\t0\t1\t2\t3\r\r\n\n2\t0\t1\t2\t3"),
            header + "\r\n1\t0\t1\t3\t-2\r\r\n\n2\t0\t1\t3\t-2");
  EXPECT_EQ(TurnZUp(header + "1\t0\t1\t2\t3\n"), header + "1\t0\t1\t3\t-2\n");
  EXPECT_EQ(TurnZUp(header + "\n# 1\t0\t1\t2\t3\n2\t0\t4\t5\t6\n3\t0\t7\t8\t9\n"),
            header + "\n# 1\t0\t1\t3\t-2\n2\t0\t4\t5\t6\n3\t0\t7\t9\t-8\n")
      << "the line behind a comment is thrown away";
  const std::string hidden = std::string(1, '\0') + "\t4\t5\t6\n";
  EXPECT_EQ(TurnZUp(header + "\n1\t0\t1\t2\t3" + hidden), header + "\n1\t0\t1\t3\t-2" + hidden);
  EXPECT_EQ(TurnZUp(""), "");
}

TEST(TurnedText, IsReadAsHeightsAlongY) {
  const TrcText text{.markers = {"a", "b"},
                     .frames = {{"1\t2\t1700", ""}, {"4\t-5\t6", "7\t8\t9"}}};
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(TurnZUp(text.Text()).value_or(""), false), "");
  double x = 0;
  double y = 0;
  double z = 0;
  EXPECT_TRUE(document.MarkerAt(0)->GetSample(0, x, y, z));
  EXPECT_EQ((std::vector<double>{x, y, z}), (std::vector<double>{1, 1700, -2}));
  EXPECT_TRUE(document.MarkerAt(0)->GetSample(1, x, y, z));
  EXPECT_EQ((std::vector<double>{x, y, z}), (std::vector<double>{4, 6, 5}));
  EXPECT_FALSE(document.MarkerAt(1)->GetSample(0, x, y, z));
}

TEST(TurnedText, IsNoneOfLinesThatAreReadInPieces) {
  const TrcText text{.markers = {"a"}, .frames = {{"1\t2\t" + std::string(10'300, '3')}}};
  EXPECT_EQ(TurnZUp(text.Text()), std::nullopt);
  const std::string almost(10'239 - 12, '3');  // with "1\t0.000\t1\t2\t" and the line end
  EXPECT_EQ(TurnZUp(TrcText{.markers = {"a"}, .frames = {{"1\t2\t" + almost}}}.Text()),
            std::nullopt)
      << "the sign makes it too long";
}

}  // namespace
