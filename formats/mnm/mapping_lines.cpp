#include "formats/mnm/mapping_lines.h"

namespace orvane {
namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

std::string_view SkipWhiteSpace(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kWhiteSpace);
  return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
}

// Takes the first word off `text`, and the white space around it; empty when there is none.
std::string_view TakeWord(std::string_view& text) {
  text = SkipWhiteSpace(text);
  const std::string_view word = text.substr(0, text.find_first_of(kWhiteSpace));
  text = SkipWhiteSpace(text.substr(word.size()));
  return word;
}

}  // namespace

// Intended: what the line does not give stays in `line` from the one before, which files written by
// hand rely on.
bool MappingLineReader::Next(MappingLine& line) {
  if (!lines_.Next(line.line)) return false;
  line.rest = line.line.text;
  line.given_standard_name = TakeWord(line.rest);
  line.given_trc_name = TakeWord(line.rest);
  if (!line.given_standard_name.empty()) line.standard_name = line.given_standard_name;
  if (!line.given_trc_name.empty()) line.trc_name = line.given_trc_name;
  return true;
}

bool CannotBeMapped(std::string_view name) {
  // In front of it stand a standard name of at least one letter and a tab.
  constexpr std::size_t kLongestName = MappingLineReader::kLongestMappingPiece - 2;
  return name.empty() || name.size() > kLongestName ||
         name.find_first_of(kWhiteSpace) != std::string_view::npos ||
         name.find('\0') != std::string_view::npos;
}

}  // namespace orvane
