#pragma once

#include <string_view>

// Tokens of a line: runs of characters between blanks and tabs. Only these two separate; any other
// character, a carriage return or a form feed included, belongs to a token. All results are views
// into the line that was passed and live as long as its text.
namespace orvane {

// True for the two characters that separate tokens, blank and tab.
[[nodiscard]] constexpr bool IsSeparator(char character) {
  return character == ' ' || character == '\t';
}

// Returns `line` without the separators at its start.
[[nodiscard]] std::string_view SkipSeparators(std::string_view line);

// Returns `line` without the separators at its end.
[[nodiscard]] std::string_view TrimTrailingSeparators(std::string_view line);

// Takes the first token off `line`, which then starts at the separator behind that token.
// Returns an empty view, and leaves `line` empty, when it holds no token.
[[nodiscard]] std::string_view TakeFirstToken(std::string_view& line);

// Takes the last token off `line`, which then ends before the separator in front of that token.
// Returns an empty view, and leaves `line` empty, when it holds no token.
[[nodiscard]] std::string_view TakeLastToken(std::string_view& line);

}  // namespace orvane
