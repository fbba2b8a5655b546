#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers as text: the one place where a number is read or printed, for files and dialogs alike,
// apart from the columns of long files (six_decimals.h). Nothing here depends on the locale.
//
// Reading converts the number that the text starts with and ignores what follows it; text that
// starts with no number is 0. Accepted, in this order: blanks, one sign, decimal digits with an
// optional point among, before or behind them, and (for reals) an exponent `e` or `E` with an
// optional sign and at least one digit. Not accepted: hexadecimal, and the words for infinity and
// not-a-number.
namespace orvane {

// The whole number that `text` starts with. A value beyond 32 bits becomes the nearest that fits.
std::int32_t ParseInt(std::string_view text);

// The real number that `text` starts with, correctly rounded. A value too large becomes infinity,
// one too small becomes 0, both with the sign written.
double ParseDouble(std::string_view text);

struct LeadingDouble {
  double value = 0.0;
  const char* end = nullptr;  // behind the last character used; the start when there is no number
};

// As ParseDouble, on the characters from `first` up to `last`, without skipping blanks, and telling
// where the number ended. For readers of long columns: plain decimals take a short way.
[[nodiscard]] LeadingDouble ReadDouble(const char* first, const char* last);

// `value` as "%d" prints it.
[[nodiscard]] std::string FormatInt(std::int64_t value);

// `value` as "%.nf" prints it: in fixed notation with `decimals` (0 to 20) digits behind the point,
// correctly rounded. The default is that of "%f".
[[nodiscard]] std::string FormatDouble(double value, int decimals = 6);

// `value` in the shortest form that reads back as the same value of its type, with an exponent
// where that is shorter: "0.1", "1e+22".
[[nodiscard]] std::string FormatShortest(double value);
[[nodiscard]] std::string FormatShortest(float value);

}  // namespace orvane
