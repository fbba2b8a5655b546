#include "formats/text/lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/blocks.h"

namespace orvane {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

std::vector<std::string> TextsOf(std::string_view bytes) {
  std::vector<std::string> texts;
  LineReader reader(bytes);
  for (Line line; reader.Next(line);) texts.emplace_back(line.text);
  return texts;
}

TEST(Lines, EndAtLineFeeds) { EXPECT_THAT(TextsOf("a\nb\n\nc\n"), ElementsAre("a", "b", "", "c")); }

TEST(Lines, LoseAllCarriageReturnsBeforeTheLineFeed) {
  EXPECT_THAT(TextsOf("a\r\nb\r\r\r\n\r\n"), ElementsAre("a", "b", ""));
}

TEST(Lines, LoseAllCarriageReturnsAtTheEndOfTheFile) {
  EXPECT_THAT(TextsOf("a\nb\r\r"), ElementsAre("a", "b"));
  EXPECT_THAT(TextsOf("a\n\r"), ElementsAre("a"));
}

TEST(Lines, KeepCarriageReturnsElsewhere) {
  EXPECT_THAT(TextsOf("a\rb\nc\r d"), ElementsAre("a\rb", "c\r d"));
}

TEST(Lines, OfAnEmptyFileAreNone) { EXPECT_THAT(TextsOf(""), ElementsAre()); }

TEST(Lines, NeedNoBreakAtTheEnd) {
  LineReader reader("a\nb");
  Line line;
  ASSERT_TRUE(reader.Next(line));
  EXPECT_TRUE(line.ends_with_break);
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.text, "b");
  EXPECT_FALSE(line.ends_with_break);
  EXPECT_FALSE(reader.Next(line));
}

TEST(Lines, EndAtANul) {
  const std::string_view bytes("ab\0cd\r\nef\n", 10);
  LineReader reader(bytes);
  Line line;
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.text, "ab");
  EXPECT_FALSE(line.ends_with_break);
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.text, "ef");
}

TEST(Lines, AreNumberedAsInTheFileAndPiecesAlike) {
  const std::string bytes = "first\n" + std::string(25000, 'x') + "\nlast\n";
  std::vector<std::size_t> numbers;
  LineReader reader(bytes);
  for (Line line; reader.Next(line);) numbers.push_back(line.number);
  EXPECT_THAT(numbers, ElementsAre(1u, 2u, 2u, 2u, 3u));
}

TEST(Lines, TellWhereTheirPiecesStand) {
  std::vector<std::size_t> offsets;
  LineReader reader("abcdefghi\r\njk\n", 4);
  for (Line line; reader.Next(line);) offsets.push_back(line.offset);
  EXPECT_THAT(offsets, ElementsAre(0u, 4u, 8u, 0u));
}

TEST(Lines, EndBehindTheLastByte) {
  const auto end_of = [](std::string_view bytes) {
    LineReader reader(bytes, 4);
    for (Line line; reader.Next(line);) {
    }
    return std::pair<std::size_t, std::size_t>(reader.End().line, reader.End().column);
  };
  EXPECT_THAT(end_of(""), Pair(1u, 1u));
  EXPECT_THAT(end_of("a\nbc"), Pair(2u, 3u));
  EXPECT_THAT(end_of("a\nbc\n"), Pair(3u, 1u));
  EXPECT_THAT(end_of("a\nbc\r\r"), Pair(2u, 5u));
  EXPECT_THAT(end_of("a\n\r"), Pair(2u, 2u));
  EXPECT_THAT(end_of("abcdefghij"), Pair(1u, 11u));
  EXPECT_THAT(end_of({"ab\0c", 4}), Pair(1u, 5u));
}

struct Pieces {
  const char* name;
  std::size_t length;
  std::string line_break;
  std::vector<std::size_t> piece_lengths;
};

class LongLines : public ::testing::TestWithParam<Pieces> {};

TEST_P(LongLines, AreCutWithTheBreakCountedAsOneCharacter) {
  const std::string bytes = std::string(GetParam().length, 'x') + GetParam().line_break;
  std::vector<std::size_t> lengths;
  bool ends_with_break = false;
  LineReader reader(bytes);
  for (Line line; reader.Next(line);) {
    EXPECT_FALSE(ends_with_break) << "only the last piece may";
    lengths.push_back(line.text.size());
    ends_with_break = line.ends_with_break;
  }
  EXPECT_EQ(lengths, GetParam().piece_lengths);
  EXPECT_EQ(ends_with_break, !GetParam().line_break.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Lengths, LongLines,
    ::testing::Values(Pieces{"LineFeedFits", 10238, "\n", {10238}},
                      Pieces{"CarriageReturnDoesNotCount", 10238, "\r\n", {10238}},
                      Pieces{"ManyCarriageReturnsDoNotCount", 10238, "\r\r\r\n", {10238}},
                      Pieces{"LineFeedAlone", 10239, "\n", {10239, 0}},
                      Pieces{"LineFeedAloneAfterCarriageReturn", 10239, "\r\n", {10239, 0}},
                      Pieces{"NoBreakFits", 10239, "", {10239}},
                      Pieces{"NoBreakCut", 10240, "", {10239, 1}},
                      Pieces{"Cut", 10240, "\n", {10239, 1}},
                      Pieces{"TwiceTheSize", 20478, "", {10239, 10239}},
                      Pieces{"TwiceTheSizeAndBreak", 20478, "\n", {10239, 10239, 0}}),
    [](const auto& pieces) { return pieces.param.name; });

TEST(Lines, LongerThanOnePieceContinueBehindANul) {
  std::string bytes(10239, 'x');
  bytes[3] = '\0';
  bytes += "rest\n";
  EXPECT_THAT(TextsOf(bytes), ElementsAre("xxx", "rest"));
}

TEST(Lines, OfOneHugeLineAreFoundInLinearTime) {
  const std::string bytes(std::size_t{32} << 20, 'x');
  std::size_t total = 0;
  LineReader reader(bytes);
  for (Line line; reader.Next(line);) total += line.text.size();
  EXPECT_EQ(total, bytes.size());
}

// A line is asked for only when what has been read holds no other.
TEST(Lines, OfBlocksAreReadWhenTheyAreAskedFor) {
  const std::string bytes = "one\ntwo\nthree";
  test::Blocks blocks(bytes, 8, 100);
  LineReader reader(blocks);
  Line line;
  ASSERT_TRUE(reader.Next(line));
  ASSERT_TRUE(reader.Next(line));
  EXPECT_EQ(line.text, "two");
  std::array<char, 8> rest{};
  EXPECT_EQ(blocks.Read(rest), 5U);
  EXPECT_EQ(std::string(rest.data(), 5), "three");
  EXPECT_FALSE(reader.Next(line));
}

TEST(Lines, OfBlocksLieTogetherInAllTheirPieces) {
  const std::string bytes =
      std::string(kLongestPiece, 'a') + std::string(kLongestPiece, 'b') + "c\n";
  test::Blocks blocks(bytes, 1, 100);
  LineReader reader(blocks);
  Line first;
  Line second;
  Line third;
  ASSERT_TRUE(reader.Next(first) && reader.Next(second) && reader.Next(third));
  EXPECT_EQ(first.text, std::string(kLongestPiece, 'a'));
  EXPECT_EQ(second.text.data(), first.text.data() + first.text.size());
  EXPECT_EQ(third.text.data(), second.text.data() + second.text.size());
  EXPECT_EQ(third.text, "c");
}

TEST(Lines, AreTheSameWhenLookedAtAhead) {
  const std::string text = "first\r\nsecond\n\nlast";
  LineReader whole(text);
  LineReader ahead(text);
  Line expected;
  Line line;
  ASSERT_TRUE(ahead.Next(line));
  ASSERT_TRUE(whole.Next(expected));
  EXPECT_EQ(ahead.Ahead(), "second\n\nlast");
  for (const std::size_t size : {7U, 1U}) {
    ahead.Take(size, line);
    ASSERT_TRUE(whole.Next(expected));
    EXPECT_EQ(line.text, expected.text);
    EXPECT_EQ(line.number, expected.number);
    EXPECT_EQ(line.ends_with_break, expected.ends_with_break);
    EXPECT_EQ(line.carriage_returns, expected.carriage_returns);
    EXPECT_EQ(ahead.End().column, whole.End().column);
  }
  ASSERT_TRUE(ahead.Next(line));
  EXPECT_EQ(line.text, "last");
  EXPECT_EQ(line.number, 4U);
  EXPECT_FALSE(ahead.Next(line));
}

TEST(Lines, AreNotAheadOfPiecesOfTheLineBefore) {
  LineReader lines("abcdef\nnext\n", 4);
  Line line;
  ASSERT_TRUE(lines.Next(line));
  EXPECT_EQ(lines.Ahead(), "");
  ASSERT_TRUE(lines.Next(line));
  EXPECT_EQ(lines.Ahead(), "next\n");
}

}  // namespace
}  // namespace orvane
