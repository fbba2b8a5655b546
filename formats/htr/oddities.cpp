#include "formats/htr/oddities.h"

#include "formats/text/tokens.h"

namespace orvane {
HtrCell HtrOddities::CellOf(std::string_view text) const {
  if (observer_ == nullptr) return {text};
  return {text, line_.Number(), line_.ColumnOf(text)};
}

void HtrOddities::ReportWords(HtrOddity oddity, std::string_view text) const {
  text = SkipSeparators(text);
  ReportIf(!text.empty(), oddity, text);
}

void HtrOddities::CheckNumber(std::string_view cell, std::string_view field) const {
  if (observer_ != nullptr) ReportFault(FaultOfNumber(cell), cell, field);
}

void HtrOddities::CheckWholeNumber(std::string_view cell, std::string_view field) const {
  if (observer_ != nullptr) ReportFault(FaultOfWholeNumber(cell), cell, field);
}

void HtrOddities::ReportFault(NumberFault fault, std::string_view cell,
                              std::string_view field) const {
  switch (fault) {
    case NumberFault::kNone:
      return;
    case NumberFault::kMissing:
      return Report(HtrOddity::kMissingNumber, cell, field);
    case NumberFault::kUnreadable:
      return Report(HtrOddity::kUnreadableNumber, cell, field);
    case NumberFault::kOutOfBounds:
      return Report(HtrOddity::kNumberOutOfBounds, cell, field);
    case NumberFault::kCut:
      return Report(HtrOddity::kCutNumber, cell, field);
  }
}

void HtrOddities::CheckNumbers(std::string_view line,
                               std::span<const std::string_view> fields) const {
  for (const std::string_view field : fields) CheckNumber(TakeFirstToken(line), field);
  ReportWords(HtrOddity::kExtraCells, line);
}

void HtrOddities::LookAtLine(const Line& line) {
  line_.Set(line);
  if (!line_.Continues()) long_line_told_ = false;
  if (line_.Continues() && !long_line_told_ && !SkipSeparators(line.text).empty()) {
    long_line_told_ = true;
    Report(HtrOddity::kLongLine, line.text);
  }
  LookAtBytes();
}

void HtrOddities::LookAtBytes() const {
  const std::string_view mark = line_.ByteOrderMark();
  ReportIf(!mark.empty(), HtrOddity::kByteOrderMark, mark);
  ReportIf(line_.IsCutByNul(), HtrOddity::kHiddenByNul, EndOfLine());
  const std::string_view text = line_.Text();
  const std::string_view data = text.substr(0, text.find('#'));
  const std::size_t carriage_return = data.find('\r');
  if (carriage_return != std::string_view::npos) {
    Report(HtrOddity::kCarriageReturn, data.substr(carriage_return));
  }
  const bool in_word = data.size() > mark.size() && data.size() != text.size() &&
                       data.back() != ']' && !IsSeparator(data.back());
  ReportIf(in_word, HtrOddity::kCommentInWord, text.substr(data.size()));
}

}  // namespace orvane
