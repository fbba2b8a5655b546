#pragma once

#include <string>
#include <string_view>

#include "formats/text/lines.h"

// The lines of a marker name mapping file: which two names each of them pairs. Every line pairs two
// names, whatever it holds; who wants to know what it really held looks at what was given. Nothing
// fails but for want of memory. A reader is for one thread at a time.
namespace orvane {

struct MappingLine {
  std::string standard_name;
  std::string trc_name;

  // What the line itself gives: views into the bytes. A name that it does not give is empty.
  Line line;
  std::string_view given_standard_name;
  std::string_view given_trc_name;
  std::string_view rest;  // from the third word on, which is ignored
};

// Hands out the lines of `bytes`, which must outlive the reader.
class MappingLineReader {
 public:
  explicit MappingLineReader(std::string_view bytes) : lines_(bytes, kLongestMappingPiece) {}

  // Puts the next line into `line` and returns true, or returns false at the end. The names are the
  // first two words of the line; words end at white space. A name that the line does not give is
  // that of the line before: files rely on it, so a blank line repeats the entry before it, and a
  // line of one word pairs that with the marker of the line before. Before the first line both
  // names are empty.
  [[nodiscard]] bool Next(MappingLine& line);

  // A line with its break has room for 1,023 characters; what is longer counts as several lines.
  static constexpr std::size_t kLongestMappingPiece = 1023;

 private:
  LineReader lines_;
};

// Whether no mapping can name the marker `name`: a word is not empty, holds no white space and no
// NUL, and fits into a line.
[[nodiscard]] bool CannotBeMapped(std::string_view name);

}  // namespace orvane
