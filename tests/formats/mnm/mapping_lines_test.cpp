#include "formats/mnm/mapping_lines.h"

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

TEST(MappingLines, TellWhatALineItselfGives) {
  MappingLineReader reader(" LFHD  Head1\t of take 2 \n\nC7\n");
  MappingLine line;
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.line.number, 1U);
  EXPECT_EQ(line.line.text, " LFHD  Head1\t of take 2 ");
  EXPECT_EQ(line.given_standard_name, "LFHD");
  EXPECT_EQ(line.given_trc_name, "Head1");
  EXPECT_EQ(line.rest, "of take 2 ");
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.line.number, 2U);
  EXPECT_EQ(line.given_standard_name, "");
  EXPECT_EQ(line.given_trc_name, "");
  EXPECT_EQ(line.rest, "");
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.line.number, 3U);
  EXPECT_EQ(line.given_standard_name, "C7");
  EXPECT_EQ(line.given_trc_name, "");
  EXPECT_FALSE(reader.Next(line));
}

TEST(MappingLines, CannotNameEveryMarker) {
  using namespace std::string_literals;
  for (const std::string& name :
       {""s, "Head 1"s, " Head"s, "Head\t1"s, "a\0b"s, std::string(1022, 'x')}) {
    EXPECT_TRUE(CannotBeMapped(name)) << name;
  }
  const std::string longest(1021, 'x');
  for (const std::string& name : {"Head1"s, "%s"s, "\xFF"s, "a\xC2\xA0z"s, longest}) {
    EXPECT_FALSE(CannotBeMapped(name)) << name;
    EXPECT_EQ(Read("a\t" + name).back(), std::make_pair("a"s, name));
  }
  EXPECT_EQ(Read("a\t" + longest + "x").size(), 2U);
}

}  // namespace
}  // namespace orvane
