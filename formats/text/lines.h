#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "formats/text/byte_source.h"

// Lines of a text, which is held in memory or read in blocks. What a line means, comments included,
// is up to each file format. Lines and columns count from 1, columns in bytes. A reader is for one
// thread at a time, and throws std::bad_alloc when there is no memory for a block or a line.
namespace orvane {

// The longest piece of a line in motion and marker files.
inline constexpr std::size_t kLongestPiece = 10239;

struct Line {
  std::string_view text;         // without the line break
  bool ends_with_break = false;  // false for all but the last piece, and at an unfinished end
  std::size_t number = 0;        // of the line in the file, counted from 1

  // What follows tells where the text stands, and what stands around it.
  std::size_t offset = 0;            // of the text in its line, in bytes
  std::size_t carriage_returns = 0;  // between the text and the line break
  bool stands_before_nul = false;    // a NUL is the next byte
  bool ends_file = false;            // nothing follows, not even a line break
};

// A place in a file; both count from 1, columns in bytes.
struct LinePlace {
  std::size_t line = 1;
  std::size_t column = 1;
};

// Hands out the lines of a text in order. A line ends at a line feed; carriage returns directly
// before the line feed, or at the end of the bytes, go with it. A line of more than `longest_piece`
// characters is handed out as several pieces, each of which counts as a line; the line break counts
// as one character of the last piece. A NUL ends the text of the piece it stands in and hides what
// follows in that piece, the line break included.
class LineReader {
 public:
  // Of `bytes`, which stay with the caller and must outlive the reader and every line it gave out.
  explicit LineReader(std::string_view bytes, std::size_t longest_piece = kLongestPiece)
      : rest_(bytes), longest_piece_(longest_piece) {}

  // Of the bytes that `source` has left, which must outlive the reader. All pieces of a line lie
  // together in memory until the next line is asked for. Takes memory for one block, or for the
  // longest line when that is longer.
  explicit LineReader(ByteSource& source) : source_(&source), longest_piece_(kLongestPiece) {}

  // Puts the next line or piece into `line` and returns true, or returns false at the end.
  [[nodiscard]] bool Next(Line& line);

  // What has been read behind the current line; nothing while that has pieces left. Lives as long
  // as the current line.
  [[nodiscard]] std::string_view Ahead() const {
    return content_.empty() && !has_break_ ? rest_ : std::string_view();
  }
  // As Next, for those who have looked ahead: puts the first `size` bytes of Ahead into `line`, of
  // which the last is a line feed, with no more than one carriage return before it. REQUIRES: they
  // are no more than the longest piece, and none of them is another line feed or a NUL.
  void Take(std::size_t size, Line& line) {
    size_ = size - 1;
    carriage_returns_ = size_ > 0 && rest_[size_ - 1] == '\r' ? 1 : 0;
    line = {rest_.substr(0, size_ - carriage_returns_), true, ++number_, 0, carriage_returns_};
    content_ = {};
    is_broken_ = true;
    rest_.remove_prefix(size);
  }

  // The place behind the last byte. REQUIRES: Next has returned false.
  [[nodiscard]] LinePlace End() const {
    if (is_broken_) return {number_ + 1, 1};
    return {number_, size_ + 1};
  }

 private:
  [[nodiscard]] bool StartLine();
  [[nodiscard]] std::size_t FindLineFeed();
  [[nodiscard]] bool ReadBlock();

  ByteSource* source_ = nullptr;  // null when there is nothing left of it
  std::vector<char> buffer_;      // of what is read of it

  std::string_view rest_;  // behind the current line's break, as far as it has been read
  std::size_t longest_piece_;
  std::string_view content_;  // of the current line, not yet handed out
  bool has_break_ = false;    // the current line's break is not yet handed out
  std::size_t number_ = 0;
  // Of the current line:
  std::size_t size_ = 0;              // without the line feed
  std::size_t carriage_returns_ = 0;  // at its end
  bool is_broken_ = true;             // by a line feed; so is what comes before the first line
};

}  // namespace orvane
