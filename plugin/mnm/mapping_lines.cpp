#include "plugin/mnm/mapping_lines.h"

namespace orvane {
namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

// Takes the first word off `text`; empty when there is none.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t begin = text.find_first_not_of(kWhiteSpace);
  if (begin == std::string_view::npos) return {};
  text.remove_prefix(begin);
  const std::string_view word = text.substr(0, text.find_first_of(kWhiteSpace));
  text.remove_prefix(word.size());
  return word;
}

}  // namespace

// Intended: what the line does not give stays in `line` from the one before, which files written by
// hand rely on.
bool MappingLineReader::Next(MappingLine& line) {
  Line piece;
  if (!lines_.Next(piece)) return false;
  line.number = piece.number;
  line.text = piece.text;
  line.words = 0;
  std::string_view rest = piece.text;
  for (std::string* name : {&line.standard_name, &line.trc_name}) {
    const std::string_view word = TakeWord(rest);
    if (word.empty()) break;
    *name = word;
    ++line.words;
  }
  return true;
}

}  // namespace orvane
