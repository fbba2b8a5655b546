#pragma once

#include <cstddef>

#include "formats/text/lines.h"

// Which lines of a marker file are what. Belongs to the reader.
namespace orvane {

// The lines of a file, counted from 0. All behind these are frames.
inline constexpr std::size_t kFileTypeLine = 0;
inline constexpr std::size_t kHeaderNamesLine = 1;
inline constexpr std::size_t kHeaderValuesLine = 2;
inline constexpr std::size_t kMarkerNamesLine = 3;
inline constexpr std::size_t kSubHeaderLine = 4;
inline constexpr std::size_t kPerhapsBlankLine = 5;

// A comment, or a line without any character, not even a line break, as a NUL leaves it.
// Intended: a comment is no comment, but takes the place of the line behind it.
[[nodiscard]] inline bool ReplacesNextLine(const Line& line) {
  return line.text.starts_with('#') || (line.text.empty() && !line.ends_with_break);
}

[[nodiscard]] inline bool IsBreakAlone(const Line& line) {
  return line.text.empty() && line.ends_with_break;
}

// Whether `line`, which is number `number`, holds a frame.
[[nodiscard]] inline bool IsFrame(const Line& line, std::size_t number) {
  return number > kPerhapsBlankLine || (number == kPerhapsBlankLine && !IsBreakAlone(line));
}

}  // namespace orvane
