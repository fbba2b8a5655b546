#include "formats/text/watched_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvane {
namespace {

using ::testing::ElementsAre;

// What `ask` says of every piece of the lines in `bytes`.
template <typename Ask>
auto OfEveryLine(std::string_view bytes, Ask ask) {
  LineReader lines(bytes, 4);
  WatchedLine watched;
  std::vector<decltype(ask(watched))> answers;
  for (Line line; lines.Next(line);) {
    watched.Set(line);
    answers.push_back(ask(watched));
  }
  return answers;
}

TEST(WatchedLine, TellsColumnsInTheLineThatThePieceIsOf) {
  const auto column_of_text = [](const WatchedLine& line) { return line.ColumnOf(line.Text()); };
  EXPECT_THAT(OfEveryLine("abcdefghij\nk\n", column_of_text), ElementsAre(1U, 5U, 9U, 1U));
  const auto column_of_end = [](const WatchedLine& line) {
    return line.ColumnOf(line.Text().substr(line.Text().size()));
  };
  EXPECT_THAT(OfEveryLine("ab\n\n", column_of_end), ElementsAre(3U, 1U));
}

TEST(WatchedLine, TellsWhichPiecesContinueALine) {
  const auto continues = [](const WatchedLine& line) { return line.Continues(); };
  EXPECT_THAT(OfEveryLine("abcdef\ng\n", continues), ElementsAre(false, true, false));
}

TEST(WatchedLine, KnowsTheMarkThatAFileStartsWith) {
  const auto mark = [](const WatchedLine& line) { return std::string(line.ByteOrderMark()); };
  EXPECT_THAT(OfEveryLine("\xEF\xBB\xBFx\n\xEF\xBB\xBF\n", mark),
              ElementsAre("\xEF\xBB\xBF", "", ""));
  EXPECT_THAT(OfEveryLine("\xFF\xFEx\n", mark), ElementsAre("\xFF\xFE"));
  EXPECT_THAT(OfEveryLine("\xFE\xFFx\n", mark), ElementsAre("\xFE\xFF"));
  EXPECT_THAT(OfEveryLine("abcd\xFF\xFE\n", mark), ElementsAre("", ""));
}

TEST(WatchedLine, KnowsWhereANulHidesTheRest) {
  using namespace std::string_literals;
  const auto is_cut = [](const WatchedLine& line) { return line.IsCutByNul(); };
  EXPECT_THAT(OfEveryLine("a\0b\nc\nabcdef\0\n"s, is_cut), ElementsAre(true, false, false, true));
  EXPECT_THAT(OfEveryLine("a", is_cut), ElementsAre(false));
}

TEST(WatchedLine, KnowsAnEndWithoutALineFeed) {
  const auto is_unfinished = [](const WatchedLine& line) { return line.EndsUnfinished(); };
  EXPECT_THAT(OfEveryLine("a\nabcdef", is_unfinished), ElementsAre(false, false, true));
  EXPECT_THAT(OfEveryLine("a\n", is_unfinished), ElementsAre(false));
}

TEST(WatchedLine, CountsCarriageReturnsBeforeTheLineFeed) {
  const auto count = [](const WatchedLine& line) { return line.CarriageReturns(); };
  EXPECT_THAT(OfEveryLine("a\nb\r\nc\r\r\n\r\nd\r", count), ElementsAre(0U, 1U, 2U, 1U, 0U));
}

}  // namespace
}  // namespace orvane
