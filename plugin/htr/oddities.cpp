#include "plugin/htr/oddities.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "plugin/text/numbers.h"
#include "plugin/text/tokens.h"

namespace orvane {
namespace {

constexpr std::string_view kByteOrderMarks[] = {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};

bool FitsInt(double value) {
  return value >= std::numeric_limits<std::int32_t>::min() &&
         value <= std::numeric_limits<std::int32_t>::max();
}

}  // namespace

HtrCell HtrOddities::CellOf(std::string_view text) const {
  if (observer_ == nullptr) return {text};
  return {text, line_, column_ + static_cast<std::size_t>(text.data() - text_.data())};
}

void HtrOddities::ReportWords(HtrOddity oddity, std::string_view text) const {
  text = SkipSeparators(text);
  ReportIf(!text.empty(), oddity, text);
}

void HtrOddities::CheckNumber(std::string_view cell, std::string_view field) const {
  if (observer_ == nullptr) return;
  if (cell.empty()) return Report(HtrOddity::kMissingNumber, cell, field);
  const char* const end = cell.data() + cell.size();
  const LeadingDouble number = ReadDouble(cell.data(), end);
  if (number.end != end) return Report(HtrOddity::kUnreadableNumber, cell, field);
  ReportIf(!std::isfinite(number.value), HtrOddity::kNumberOutOfBounds, cell, field);
}

void HtrOddities::CheckWholeNumber(std::string_view cell, std::string_view field) const {
  if (observer_ == nullptr) return;
  const char* const end = cell.data() + cell.size();
  const LeadingDouble number = ReadDouble(cell.data(), end);
  if (number.end != end || cell.empty()) return CheckNumber(cell, field);
  if (!FitsInt(number.value)) return Report(HtrOddity::kNumberOutOfBounds, cell, field);
  ReportIf(number.value != ParseInt(cell), HtrOddity::kCutNumber, cell, field);
}

void HtrOddities::CheckNumbers(std::string_view line,
                               std::span<const std::string_view> fields) const {
  for (const std::string_view field : fields) CheckNumber(TakeFirstToken(line), field);
  ReportWords(HtrOddity::kExtraCells, line);
}

void HtrOddities::LookAtLine(const Line& line) {
  const bool continues = line.number == line_;
  column_ = continues ? column_ + kLongestPiece : 1;
  line_ = line.number;
  text_ = line.text;
  if (!continues) long_line_told_ = false;
  if (continues && !long_line_told_ && !SkipSeparators(text_).empty()) {
    long_line_told_ = true;
    Report(HtrOddity::kLongLine, text_);
  }
  LookAtBytes(line);
}

void HtrOddities::LookAtBytes(const Line& line) const {
  if (line_ == 1 && column_ == 1) {
    for (const std::string_view mark : kByteOrderMarks) {
      ReportIf(text_.starts_with(mark), HtrOddity::kByteOrderMark, text_.substr(0, mark.size()));
    }
  }
  // The reader gives out a text that ends where a NUL stands.
  const char* const end = text_.data() + text_.size();
  const bool hidden = !line.ends_with_break && end != end_of_bytes_ && *end == '\0';
  ReportIf(hidden, HtrOddity::kHiddenByNul, text_.substr(text_.size()));
  const std::size_t comment = text_.find('#');
  const std::string_view data = text_.substr(0, comment);
  const std::size_t carriage_return = data.find('\r');
  if (carriage_return != std::string_view::npos) {
    Report(HtrOddity::kCarriageReturn, data.substr(carriage_return));
  }
  const bool in_word = !data.empty() && data.size() != text_.size() && data.back() != ']' &&
                       !IsSeparator(data.back());
  ReportIf(in_word, HtrOddity::kCommentInWord, text_.substr(data.size()));
}

}  // namespace orvane
