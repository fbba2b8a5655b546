#pragma once

#include <cstddef>
#include <string_view>

// Lines of a text file held in memory. The bytes stay with the caller and must outlive the reader
// and every line it gave out. What a line means, comments included, is up to each file format.
namespace orvane {

// The longest piece of a line in motion and marker files.
inline constexpr std::size_t kLongestPiece = 10239;

struct Line {
  std::string_view text;         // without the line break
  bool ends_with_break = false;  // false for all but the last piece, and at an unfinished end
  std::size_t number = 0;        // of the line in the file, counted from 1
};

// Hands out the lines of `bytes` in order. A line ends at a line feed; carriage returns directly
// before the line feed, or at the end of the bytes, go with it. A line of more than `longest_piece`
// characters is handed out as several pieces, each of which counts as a line; the line break counts
// as one character of the last piece. A NUL ends the text of the piece it stands in and hides what
// follows in that piece, the line break included.
class LineReader {
 public:
  explicit LineReader(std::string_view bytes, std::size_t longest_piece = kLongestPiece)
      : rest_(bytes), longest_piece_(longest_piece) {}

  // Puts the next line or piece into `line` and returns true, or returns false at the end.
  [[nodiscard]] bool Next(Line& line);

 private:
  [[nodiscard]] bool StartLine();

  std::string_view rest_;  // behind the current line's break
  std::size_t longest_piece_;
  std::string_view content_;  // of the current line, not yet handed out
  bool has_break_ = false;    // the current line's break is not yet handed out
  std::size_t number_ = 0;
};

}  // namespace orvane
