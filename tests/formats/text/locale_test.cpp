#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <locale>
#include <string>

#include "formats/text/numbers.h"
#include "formats/text/six_decimals.h"

namespace orvane {
namespace {

// Punctuation of a country that writes 1.234,5.
class CommaPunctuation : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

void ExpectPointsNotCommas() {
  EXPECT_EQ(ParseDouble("1234.5"), 1234.5);
  EXPECT_EQ(ParseDouble("1,5"), 1.0);
  EXPECT_EQ(ParseDouble("1.25e-3"), 1.25e-3);
  EXPECT_EQ(ParseDouble("1234567890123456789012.5"), 1234567890123456789012.5);
  EXPECT_EQ(ParseInt("1234567"), 1234567);
  EXPECT_EQ(FormatDouble(1234567.25, 2), "1234567.25");
  EXPECT_EQ(FormatInt(1234567), "1234567");
  std::array<char, kLongestSixDecimals> text{};
  for (const double value : {1234.25, 1234567.25}) {
    const std::string written(text.data(), WriteSixDecimals(value, text.data()));
    EXPECT_EQ(written, FormatDouble(value));
    EXPECT_NE(written.find(".250000"), std::string::npos);
  }
}

TEST(Locale, OfTheStreamsChangesNoNumber) {
  const std::locale before = std::locale::global(std::locale(std::locale(), new CommaPunctuation));
  ExpectPointsNotCommas();
  std::locale::global(before);
}

TEST(Locale, OfTheLibraryChangesNoNumber) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const char* found = nullptr;
  for (const char* name :
       {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8", "nl_NL.UTF-8", "German_Germany"}) {
    if (found == nullptr) found = std::setlocale(LC_ALL, name);
  }
  if (found == nullptr) GTEST_SKIP() << "no locale with a decimal comma is installed";
  ExpectPointsNotCommas();
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace orvane
