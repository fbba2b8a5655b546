#include "formats/text/number_form.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "decimal/decimal.h"

namespace orvane {
namespace {

static_assert(NumberForm::kLongest >= decimal::LongestFixed(NumberForm::kMostDecimals));
static_assert(NumberForm::kLongest >= decimal::kLongestShortest);

char* WriteBeyondNumbers(double value, char* first) {
  constexpr std::string_view kInfinite = "1e999";
  if (std::isnan(value)) {
    *first = '0';
    return first + 1;
  }
  if (value < 0) *first++ = '-';
  return std::copy(kInfinite.begin(), kInfinite.end(), first);
}

}  // namespace

char* NumberForm::Write(double value, char* first) const {
  if (!std::isfinite(value)) return WriteBeyondNumbers(value, first);
  if (decimals_) return decimal::WriteFixed(value, *decimals_, first);
  return decimal::WriteShortest(value, first);
}

std::string NumberForm::Text(double value) const {
  std::string text(kLongest, '\0');
  text.resize(static_cast<std::size_t>(Write(value, text.data()) - text.data()));
  return text;
}

}  // namespace orvane
