#include "formats/htr/transform_row.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "formats/text/words.h"

namespace orvane {
namespace {

constexpr std::size_t kBlock = 32;      // characters that are looked at together
constexpr std::size_t kLongest = 1024;  // of the characters of a line that is worth it
constexpr char kFirstOfNumbers = '+';   // what separates and ends all comes before it

// A bit for each of kBlock characters that cannot be one of a number.
Word MarksIn(const char* text) {
  Word marks = 0;
  for (std::size_t word = 0; word < kBlock; word += kCharactersPerWord) {
    marks |= GatherMarks(MarksBelow(kFirstOfNumbers, LoadWord(text + word))) << word;
  }
  return marks;
}

// The size of a line whose text ends at `end`; 0 unless there is a line break.
std::size_t SizeWithBreak(std::string_view ahead, std::size_t end) {
  const std::size_t feed = end + (ahead[end] == '\r' ? 1 : 0);
  return feed < ahead.size() && ahead[feed] == '\n' ? feed + 1 : 0;
}

}  // namespace

std::size_t TransformRow::ReadFrame(std::string_view ahead) {
  is_ordinary_ = true;
  if (ahead.starts_with('[')) return 0;
  std::size_t cell = 0;
  std::size_t begin = 0;
  const std::size_t last_block = std::min(ahead.size(), kLongest);
  for (std::size_t block = 0; block + kBlock <= last_block; block += kBlock) {
    for (Word marks = MarksIn(ahead.data() + block); marks != 0; marks &= marks - 1) {
      const std::size_t end = block + static_cast<std::size_t>(std::countr_zero(marks));
      if (end == begin) return 0;
      if (cell > 0 && !ReadNumber(ahead.data(), begin, end, values_[cell - 1])) return 0;
      if (cell == kNumbers) return SizeWithBreak(ahead, end);
      if (!IsSeparator(ahead[end])) return 0;
      ++cell;
      begin = end + 1;
    }
  }
  return 0;
}

// Near the start of the line there may be nothing before it that could be read with the number.
bool TransformRow::ReadNumber(const char* text, std::size_t begin, std::size_t end, double& value) {
  std::array<char, 2 * kLongerDecimalReach> copy;
  if (end < kLongerDecimalReach) {
    std::memset(copy.data(), 0, kLongerDecimalReach);
    std::memcpy(copy.data() + kLongerDecimalReach, text, kLongerDecimalReach);
    text = copy.data() + kLongerDecimalReach;
  }
  if (ReadDecimalOfRow(text + begin, text + end, decimals_, value)) return true;
  return number_row::ReadCell({text + begin, end - begin}, kLongerDecimalReach, decimals_, value);
}

}  // namespace orvane
