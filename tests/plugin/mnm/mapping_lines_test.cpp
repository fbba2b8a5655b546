#include "plugin/mnm/mapping_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace orvane {
namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs Read(std::string_view bytes) {
  Pairs pairs;
  MappingLineReader reader(bytes);
  MappingLine line;
  while (reader.Next(line)) pairs.emplace_back(line.standard_name, line.trc_name);
  return pairs;
}

struct ReadCase {
  std::string description;
  std::string bytes;
  Pairs pairs;
};

TEST(MappingLines, PairTheFirstTwoWordsOfALine) {
  const std::vector<ReadCase> cases = {
      {"nothing", "", {}},
      {"tabs, as they are written", "LFHD\tHead1\t\n", {{"LFHD", "Head1"}}},
      {"blanks", "  LFHD   Head1 \n", {{"LFHD", "Head1"}}},
      {"other white space", "\v\fLFHD\fHead1\v\n", {{"LFHD", "Head1"}}},
      {"no line end at the end", "LFHD\tHead1", {{"LFHD", "Head1"}}},
      {"carriage returns", "LFHD\tHead1\t\r\nC7\tBack\r\r\n", {{"LFHD", "Head1"}, {"C7", "Back"}}},
      {"more than two words", "LFHD Head 1\n", {{"LFHD", "Head"}}},
      {"bytes that are no UTF-8", "\xFF \x80\n", {{"\xFF", "\x80"}}},
      {"a no-break space is no white space", "a\xC2\xA0z b\n", {{"a\xC2\xA0z", "b"}}},
  };
  for (const ReadCase& c : cases) EXPECT_EQ(Read(c.bytes), c.pairs) << c.description;
}

TEST(MappingLines, RepeatWhatALineDoesNotGive) {
  const std::vector<ReadCase> cases = {
      {"one word", "LFHD Head1\nLBHD\n", {{"LFHD", "Head1"}, {"LBHD", "Head1"}}},
      {"a blank line", "LFHD Head1\n\n", {{"LFHD", "Head1"}, {"LFHD", "Head1"}}},
      {"a line of blanks", "LFHD Head1\n \t\r\n", {{"LFHD", "Head1"}, {"LFHD", "Head1"}}},
      {"one word at first", "LFHD\n", {{"LFHD", ""}}},
      {"a blank line at first", "\nLFHD Head1\n", {{"", ""}, {"LFHD", "Head1"}}},
  };
  for (const ReadCase& c : cases) EXPECT_EQ(Read(c.bytes), c.pairs) << c.description;
}

TEST(MappingLines, CutsALineThatIsTooLongForItsBuffer) {
  const std::string longest(1022, 'x');
  EXPECT_EQ(Read(longest + "\n"), (Pairs{{longest, ""}})) << "with its break it just fits";
  EXPECT_EQ(Read(longest + "y\n"), (Pairs{{longest + "y", ""}, {longest + "y", ""}}))
      << "the break is a line of its own";
  EXPECT_EQ(Read(longest + "yz a\n"), (Pairs{{longest + "y", ""}, {"z", "a"}}));
}

TEST(MappingLines, BoundTheirWordsHoweverLongTheyAre) {
  const std::string bytes(1'000'000, 'x');
  MappingLineReader reader(bytes);
  MappingLine line;
  std::size_t lines = 0;
  while (reader.Next(line)) {
    EXPECT_LE(line.standard_name.size(), 1023U);
    ++lines;
  }
  EXPECT_EQ(lines, 978U);
}

TEST(MappingLines, EndAtANul) {
  using namespace std::string_literals;
  EXPECT_EQ(Read("LFHD\0 Head1\nC7 Back\n"s), (Pairs{{"LFHD", ""}, {"C7", "Back"}}));
}

TEST(MappingLines, TellNumberTextAndWords) {
  MappingLineReader reader("LFHD Head1\n\nC7\n");
  MappingLine line;
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.number, 1U);
  EXPECT_EQ(line.words, 2);
  EXPECT_EQ(line.text, "LFHD Head1");
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.number, 2U);
  EXPECT_EQ(line.words, 0);
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.number, 3U);
  EXPECT_EQ(line.words, 1);
  EXPECT_FALSE(reader.Next(line));
}

}  // namespace
}  // namespace orvane
