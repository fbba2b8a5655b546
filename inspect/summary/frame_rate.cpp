#include "inspect/summary/frame_rate.h"

#include <numeric>
#include <string>

#include "formats/htr/reader.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "formats/trc/document.h"
#include "formats/trc/fields.h"
#include "formats/trc/line_rules.h"
#include "formats/trc/outline.h"

namespace orvane {
namespace {

constexpr std::int64_t kLargest = std::int64_t{1} << 53U;
constexpr std::int64_t kBase = 10;

// `digits` times ten to the power of `exponent`.
struct Decimal {
  std::int64_t digits = 0;
  std::int64_t exponent = 0;
};

bool HasRoom(std::int64_t number) { return number <= (kLargest - (kBase - 1)) / kBase; }

// Takes one more digit; one in the fraction that does not fit is left out, another ends it all.
bool TakeDigit(char digit, bool in_fraction, Decimal& number) {
  if (!HasRoom(number.digits)) return in_fraction;
  number.digits = number.digits * kBase + (digit - '0');
  if (in_fraction) --number.exponent;
  return true;
}

// `number` is one as ReadDouble takes it.
std::optional<Decimal> ReadDecimal(std::string_view number) {
  Decimal decimal;
  bool in_fraction = false;
  for (std::size_t index = 0; index < number.size(); ++index) {
    const char character = number[index];
    if (character == '-') return std::nullopt;
    if (character == 'e' || character == 'E') {
      decimal.exponent += ParseInt(number.substr(index + 1));
      break;
    }
    if (character == '.') in_fraction = true;
    if (character < '0' || character > '9') continue;
    if (!TakeDigit(character, in_fraction, decimal)) return std::nullopt;
  }
  return decimal;
}

std::optional<FrameRate> Reduced(const Decimal& decimal) {
  if (decimal.digits <= 0) return std::nullopt;
  FrameRate rate{decimal.digits, 1};
  std::int64_t exponent = decimal.exponent;
  for (; exponent < 0 && rate.numerator % kBase == 0; ++exponent) rate.numerator /= kBase;
  for (; exponent != 0; exponent += exponent < 0 ? 1 : -1) {
    std::int64_t& number = exponent < 0 ? rate.denominator : rate.numerator;
    if (!HasRoom(number)) return std::nullopt;
    number *= kBase;
  }
  const std::int64_t common = std::gcd(rate.numerator, rate.denominator);
  return FrameRate{rate.numerator / common, rate.denominator / common};
}

// The number that `text` starts with, as it stands.
std::string_view NumberIn(std::string_view text) {
  text = SkipSeparators(text);
  const char* const end = ReadDouble(text.data(), text.data() + text.size()).end;
  return text.substr(0, static_cast<std::size_t>(end - text.data()));
}

class HtrRateObserver final : public HtrReadObserver {
 public:
  void OnOddity(HtrOddity /*oddity*/, const HtrCell& /*cell*/,
                std::string_view /*field*/) override {}
  void OnHeaderField(const HtrCell& keyword, const HtrCell& value) override {
    if (keyword.text == "DataFrameRate") rates.data = NumberIn(value.text);
  }

  RateTexts rates;  // the last ones
};

class TrcRateObserver final : public TRCReadObserver {
 public:
  void OnOddity(TRCOddity /*oddity*/, TRCPlace /*place*/, std::string_view /*text*/) override {}
  void OnHeaderValue(TRCHeaderValue value, TRCPlace /*place*/, std::string_view text) override {
    if (value == TRCHeaderValue::kDataRate) rates.data = NumberIn(text);
    if (value == TRCHeaderValue::kCameraRate) rates.camera = NumberIn(text);
  }
  void OnHeaderLine(std::size_t number, const Line& line) override {
    if (number != kHeaderValuesLine) return;
    constexpr int kBeforeOriginalRate = 5;
    TRCFields fields(line);
    fields.Drop(kBeforeOriginalRate);
    rates.original = NumberIn(fields.Get());
  }
  bool WatchesFrames() const override { return false; }

  RateTexts rates;
};

}  // namespace

std::optional<FrameRate> ParseFrameRate(std::string_view text) {
  const auto decimal = ReadDecimal(NumberIn(text));
  return decimal ? Reduced(*decimal) : std::nullopt;
}

RateTexts RateTextsOfHtr(ByteSource& source) {
  HtrDocument document;
  HtrRateObserver observer;
  // A refusal comes behind the header, or is told by whoever reads the file.
  (void)ReadHtrFrom(document, source, false, &observer);
  return observer.rates;
}

RateTexts RateTextsOfTrc(ByteSource& source) {
  TRCDocument document;
  TrcRateObserver observer;
  (void)document.ReadBytes(TrcHeaderOf(source), false, &observer);
  return observer.rates;
}

std::optional<FrameRate> FrameRateOfHtr(ByteSource& source) {
  return ParseFrameRate(RateTextsOfHtr(source).data);
}

std::optional<FrameRate> FrameRateOfTrc(ByteSource& source) {
  return ParseFrameRate(RateTextsOfTrc(source).data);
}

}  // namespace orvane
