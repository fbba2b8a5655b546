#include "formats/text/lines.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "formats/text/find_character.h"

namespace orvane {
namespace {

// Of a file, at once: much less takes more calls of the system, and much more leaves the cache of
// the processor.
constexpr std::size_t kBlock = std::size_t{256} * 1024;

// The room for a line that needs more than `kept` bytes, in a file that should have `size` of them.
std::size_t LargerThan(std::size_t kept, std::size_t size) {
  const std::size_t larger = std::max(kBlock, 2 * kept);
  return size > kept ? std::min(larger, std::max(kBlock, size)) : larger;
}

}  // namespace

bool LineReader::Next(Line& line) {
  if (content_.empty() && !has_break_ && !StartLine()) return false;
  // The break takes the place of one character, so a line of exactly the longest size is followed
  // by a piece that holds the break alone.
  const std::size_t taken = content_.size() + (has_break_ ? 1 : 0);
  const bool whole = taken <= longest_piece_;
  line.text = whole ? content_ : content_.substr(0, longest_piece_);
  line.ends_with_break = whole && has_break_;
  line.number = number_;
  line.offset = size_ - carriage_returns_ - content_.size();
  line.carriage_returns = line.ends_with_break ? carriage_returns_ : 0;
  content_.remove_prefix(line.text.size());
  if (whole) has_break_ = false;
  line.stands_before_nul = content_.starts_with('\0');
  line.ends_file = content_.empty() && !is_broken_ && carriage_returns_ == 0;

  if (const std::size_t nul = line.text.find('\0'); nul != std::string_view::npos) {
    line.text = line.text.substr(0, nul);
    line.ends_with_break = false;
    line.carriage_returns = 0;
    line.stands_before_nul = true;
    line.ends_file = false;
  }
  return true;
}

// Finds the end of the next line. Returns false when there is none.
bool LineReader::StartLine() {
  const std::size_t end = FindLineFeed();
  if (rest_.empty()) return false;
  has_break_ = is_broken_ = end != std::string_view::npos;
  content_ = rest_.substr(0, end);
  size_ = content_.size();
  rest_.remove_prefix(has_break_ ? end + 1 : rest_.size());
  while (!content_.empty() && content_.back() == '\r') content_.remove_suffix(1);
  carriage_returns_ = size_ - content_.size();
  ++number_;
  return has_break_ || !content_.empty();
}

std::size_t LineReader::FindLineFeed() {
  std::size_t end = FindCharacter(rest_, '\n');
  while (end == std::string_view::npos && source_ != nullptr) {
    const std::size_t seen = rest_.size();
    if (!ReadBlock()) source_ = nullptr;
    end = FindCharacter(rest_, '\n', seen);
  }
  return end;
}

// Reads on behind the rest, which moves to the start of the buffer. Returns false at the end.
bool LineReader::ReadBlock() {
  const std::size_t kept = rest_.size();
  if (kept > 0 && rest_.data() != buffer_.data()) {
    std::memmove(buffer_.data(), rest_.data(), kept);
  }
  if (kept == buffer_.size()) buffer_.resize(LargerThan(kept, source_->Size()));
  const std::size_t count = source_->Read(std::span(buffer_).subspan(kept));
  rest_ = {buffer_.data(), kept + count};
  return count > 0;
}

}  // namespace orvane
