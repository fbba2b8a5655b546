#include "formats/trc/oddities.h"

#include "formats/text/numbers.h"
#include "formats/text/tokens.h"

namespace orvane {
namespace {

std::string_view WithoutBlanks(std::string_view field) {
  return TrimTrailingSeparators(SkipSeparators(field));
}

}  // namespace

void TRCOddities::LookAtBytes() {
  const std::string_view text = line_.Text();
  const std::string_view end = text.substr(text.size());
  const std::string_view mark = line_.ByteOrderMark();
  ReportIf(!mark.empty(), TRCOddity::kByteOrderMark, 1, mark);
  ReportLongLine();
  const std::size_t carriage_return = text.find('\r');
  if (carriage_return != std::string_view::npos) {
    Report(TRCOddity::kCarriageReturn, 0, text.substr(carriage_return));
  }
  ReportIf(line_.IsCutByNul(), TRCOddity::kHiddenByNul, 0, end);
  ReportIf(line_.CarriageReturns() > 1, TRCOddity::kSpareCarriageReturns, 0, end);
  ReportIf(line_.EndsUnfinished(), TRCOddity::kUnfinishedEnd, 0, end);
}

// Once for each line.
void TRCOddities::ReportLongLine() {
  if (line_.Continues() && !long_line_told_) Report(TRCOddity::kLongLine, 0, line_.Text());
  long_line_told_ = line_.Continues();
}

void TRCOddities::ReportFault(NumberFault (*fault_of)(std::string_view), std::size_t field,
                              std::string_view text) const {
  switch (fault_of(WithoutBlanks(text))) {
    case NumberFault::kNone:
      return;
    case NumberFault::kMissing:
      return Report(TRCOddity::kMissingNumber, field, text.substr(0, 0));
    case NumberFault::kUnreadable:
      return Report(TRCOddity::kUnreadableNumber, field, text);
    case NumberFault::kOutOfBounds:
      return Report(TRCOddity::kNumberOutOfBounds, field, text);
    case NumberFault::kCut:
      return Report(TRCOddity::kNumberCut, field, text);
  }
}

void TRCOddities::ReportFaultsOfRate(std::size_t field, std::string_view text) const {
  if (FaultOfWholeNumber(WithoutBlanks(text)) == NumberFault::kCut) {
    Report(TRCOddity::kRateTruncated, field, text);
  } else {
    CheckWholeNumber(field, text);
  }
  ReportIf(ParseInt(text) <= 0, TRCOddity::kRateNotPositive, field, text);
}

}  // namespace orvane
