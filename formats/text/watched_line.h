#pragma once

#include <cstddef>
#include <string_view>

#include "formats/text/lines.h"

// Where a piece of a line stands in its file, and what is odd about its bytes. Readers have one
// when they are watched.
namespace orvane {

class WatchedLine {
 public:
  // Goes on to `line`, the next one or the next piece of one.
  void Set(const Line& line);

  std::size_t Number() const { return line_.number; }
  [[nodiscard]] std::string_view Text() const { return line_.text; }
  // The column, in bytes from 1, at which `text` starts in its line. `text` is a part of the piece.
  std::size_t ColumnOf(std::string_view text) const {
    return 1 + line_.offset + static_cast<std::size_t>(text.data() - line_.text.data());
  }

  // Whether the line began in a piece before this one.
  [[nodiscard]] bool Continues() const { return continues_; }
  // The mark that the file starts with, in UTF-8 or UTF-16; empty in any other line than the first.
  [[nodiscard]] std::string_view ByteOrderMark() const;
  // Whether a NUL hides what follows in the piece.
  [[nodiscard]] bool IsCutByNul() const { return line_.stands_before_nul; }
  // Whether the file ends with this line, and the line without a line feed.
  [[nodiscard]] bool EndsUnfinished() const { return line_.ends_file; }
  // How many carriage returns stand between the text and its line feed.
  std::size_t CarriageReturns() const { return line_.carriage_returns; }

 private:
  Line line_;
  bool continues_ = false;
};

}  // namespace orvane
