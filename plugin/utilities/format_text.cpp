#include "plugin/utilities/format_text.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace orvane {
namespace {

constexpr std::size_t kLongestResult = 256;
constexpr std::size_t kUsualDecimals = 6;

// What stands behind a per cent sign, as far as it matters for zeros.
struct FormatConversion {
  bool left = false;
  bool plus = false;
  bool blank = false;
  bool alternate = false;
  bool zeros = false;
  std::size_t width = 0;
  std::optional<std::size_t> precision;
  char type = '\0';  // '\0': the text ends before it
};

bool IsOneOf(char character, std::string_view characters) {
  return characters.find(character) != std::string_view::npos;
}

// Takes single characters off the start of a format.
class FormatCharacters {
 public:
  explicit FormatCharacters(std::string_view rest) : rest_(rest) {}

  std::string_view Rest() const { return rest_; }

  // The next one, or NUL at the end.
  char Take() {
    if (rest_.empty()) return '\0';
    const char character = rest_.front();
    rest_.remove_prefix(1);
    return character;
  }
  bool TakeIf(std::string_view characters) {
    if (rest_.empty() || !IsOneOf(rest_.front(), characters)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  // A number, or 0 when there is none. What is too large for a result is as good as the largest.
  std::size_t TakeNumber() {
    if (TakeIf("*")) return 0;
    std::size_t number = 0;
    while (!rest_.empty() && IsOneOf(rest_.front(), "0123456789")) {
      number = std::min(10 * number + static_cast<std::size_t>(Take() - '0'), kLongestResult);
    }
    return number;
  }

 private:
  std::string_view rest_;
};

bool TakeFlag(FormatCharacters& characters, FormatConversion& conversion) {
  if (characters.TakeIf("-")) return conversion.left = true;
  if (characters.TakeIf("+")) return conversion.plus = true;
  if (characters.TakeIf(" ")) return conversion.blank = true;
  if (characters.TakeIf("#")) return conversion.alternate = true;
  if (characters.TakeIf("0")) return conversion.zeros = true;
  return false;
}

FormatConversion TakeConversion(FormatCharacters& characters) {
  FormatConversion conversion;
  while (TakeFlag(characters, conversion)) continue;
  conversion.width = characters.TakeNumber();
  if (characters.TakeIf(".")) conversion.precision = characters.TakeNumber();
  while (characters.TakeIf("hljztL")) continue;
  conversion.type = characters.Take();
  return conversion;
}

std::string SignOf(const FormatConversion& conversion) {
  if (conversion.plus) return "+";
  return conversion.blank ? " " : "";
}

// `sign` and `digits` in the width that is asked for, and never longer than a result may be.
std::string Padded(const FormatConversion& conversion, const std::string& sign,
                   const std::string& digits, bool pad_with_zeros) {
  const std::size_t length = sign.size() + digits.size();
  const std::string padding(conversion.width - std::min(conversion.width, length),
                            pad_with_zeros && !conversion.left ? '0' : ' ');
  std::string result;
  if (conversion.left) {
    result = sign + digits + padding;
  } else if (pad_with_zeros) {
    result = sign + padding + digits;
  } else {
    result = padding + sign + digits;
  }
  return result.substr(0, kLongestResult);
}

std::string IntegerZero(const FormatConversion& conversion) {
  const bool is_signed = IsOneOf(conversion.type, "di");
  std::string digits(conversion.precision.value_or(1), '0');
  if (digits.empty() && conversion.alternate && conversion.type == 'o') digits = "0";
  const bool pad_with_zeros = conversion.zeros && !conversion.precision;
  return Padded(conversion, is_signed ? SignOf(conversion) : "", digits, pad_with_zeros);
}

std::string RealZero(const FormatConversion& conversion) {
  const std::size_t decimals = conversion.precision.value_or(kUsualDecimals);
  const char* const point = decimals > 0 || conversion.alternate ? "." : "";
  return Padded(conversion, SignOf(conversion), "0" + (point + std::string(decimals, '0')),
                conversion.zeros);
}

// The result of `conversion`, whose text is `text` from the per cent sign on.
std::string ResultOf(const FormatConversion& conversion, std::string_view text) {
  if (text == "%%") return "%";
  if (conversion.type == '\0') return std::string(text);
  if (IsOneOf(conversion.type, "diuoxX")) return IntegerZero(conversion);
  if (IsOneOf(conversion.type, "fFeEgGaA")) return RealZero(conversion);
  if (conversion.type == 's') return "(null)";
  if (IsOneOf(conversion.type, "cn")) return "";
  return std::string(text);
}

}  // namespace

std::string FormatWithoutArguments(std::string_view format) {
  std::string result;
  while (!format.empty()) {
    const std::size_t sign = std::min(format.find('%'), format.size());
    result += format.substr(0, sign);
    format.remove_prefix(sign);
    if (format.empty()) break;
    FormatCharacters characters(format.substr(1));
    const FormatConversion conversion = TakeConversion(characters);
    const std::size_t length = format.size() - characters.Rest().size();
    result += ResultOf(conversion, format.substr(0, length));
    format.remove_prefix(length);
  }
  return result;
}

}  // namespace orvane
