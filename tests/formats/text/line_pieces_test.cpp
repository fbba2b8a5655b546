#include "formats/text/line_pieces.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace orvane {
namespace {

std::vector<std::string> PiecesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> pieces;
  TakeByLines(stream, [&pieces](std::string_view lines) { pieces.emplace_back(lines); });
  return pieces;
}

std::string Lines(std::size_t count, std::size_t length) {
  std::string text;
  for (std::size_t line = 0; line < count; ++line) text += std::string(length, 'x') + '\n';
  return text;
}

TEST(TakeByLinesTest, HandsOutAllBytesInPiecesThatEndWithALine) {
  for (const std::size_t length : {0U, 1U, 79U, 10'000U, 262'142U, 262'143U, 262'144U, 900'000U}) {
    for (const std::string end : {"", "unfinished"}) {
      const std::string text = Lines(1'000'000 / (length + 1) + 2, length) + end;
      const std::vector<std::string> pieces = PiecesOf(text);
      std::string all;
      for (const std::string& piece : pieces) {
        EXPECT_FALSE(piece.empty()) << length;
        EXPECT_TRUE(piece.ends_with('\n') || &piece == &pieces.back()) << length;
        all += piece;
      }
      EXPECT_EQ(all, text) << length;
    }
  }
}

TEST(TakeByLinesTest, HandsOutNoPieceOfNothing) { EXPECT_EQ(PiecesOf("").size(), 0U); }

}  // namespace
}  // namespace orvane
