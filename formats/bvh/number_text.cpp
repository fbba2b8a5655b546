#include "formats/bvh/number_text.h"

#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include "formats/text/numbers.h"
#include "formats/text/six_decimals.h"
#include "formats/text/text_buffer.h"

namespace orvane {
namespace {

constexpr int kUsualDecimals = 6;
constexpr int kMostFittingDecimals = 15;
constexpr double kDigitsOfHeight = 7.0;

std::string_view WithoutSignOfZero(std::string_view text) {
  const bool is_zero = text.find_first_not_of("-0.") == std::string_view::npos;
  return is_zero && text.starts_with('-') ? text.substr(1) : text;
}

}  // namespace

BvhNumberText BvhNumberText::OfLengths(double height) {
  if (!(height > 0) || !std::isfinite(height)) return BvhNumberText(kUsualDecimals);
  const double decimals = std::ceil(kDigitsOfHeight - std::log10(height));
  if (decimals > kMostFittingDecimals) return BvhNumberText();
  return BvhNumberText(decimals > kUsualDecimals ? static_cast<int>(decimals) : kUsualDecimals);
}

BvhNumberText BvhNumberText::OfAngles() { return BvhNumberText(kUsualDecimals); }

void BvhNumberText::Put(double number, TextBuffer& text) const {
  if (decimals_ == kUsualDecimals) {
    std::array<char, kLongestColumn> digits;
    const char* end = WriteSixDecimals(number, digits.data());
    const auto size = static_cast<std::size_t>(end - digits.data());
    return text.Put(WithoutSignOfZero({digits.data(), size}));
  }
  const std::string digits =
      decimals_ == kShortest ? FormatShortest(number) : FormatDouble(number, decimals_);
  text.Put(WithoutSignOfZero(digits));
}

}  // namespace orvane
