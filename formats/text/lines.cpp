#include "formats/text/lines.h"

namespace orvane {

bool LineReader::Next(Line& line) {
  if (content_.empty() && !has_break_ && !StartLine()) return false;
  // The break takes the place of one character, so a line of exactly the longest size is followed
  // by a piece that holds the break alone.
  const std::size_t taken = content_.size() + (has_break_ ? 1 : 0);
  const bool whole = taken <= longest_piece_;
  line.text = whole ? content_ : content_.substr(0, longest_piece_);
  line.ends_with_break = whole && has_break_;
  line.number = number_;
  content_.remove_prefix(line.text.size());
  if (whole) has_break_ = false;

  if (const std::size_t nul = line.text.find('\0'); nul != std::string_view::npos) {
    line.text = line.text.substr(0, nul);
    line.ends_with_break = false;
  }
  return true;
}

// Finds the end of the next line. Returns false when there is none.
bool LineReader::StartLine() {
  const std::size_t end = rest_.find('\n');
  has_break_ = end != std::string_view::npos;
  content_ = rest_.substr(0, end);
  rest_.remove_prefix(has_break_ ? end + 1 : rest_.size());
  while (!content_.empty() && content_.back() == '\r') content_.remove_suffix(1);
  ++number_;
  return has_break_ || !content_.empty();
}

}  // namespace orvane
