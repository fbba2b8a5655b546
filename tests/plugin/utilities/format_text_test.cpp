#include "plugin/utilities/format_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(FormatWithoutArgumentsTest, CarriesConversionsOut) {
  const struct {
    std::string_view format;
    std::string expected;
  } cases[] = {
      {"", ""},
      {"nothing to convert", "nothing to convert"},
      {"100%%", "100%"},
      {"50%done.trc", "500one.trc"},
      {"%s%s%n.trc", "(null)(null).trc"},
      {"[%c]", "[]"},
      {"[%n]", "[]"},
      {"%d %i %u %o %x %X", "0 0 0 0 0 0"},
      {"%f %F %e %E", "0.000000 0.000000 0.000000 0.000000"},
      {"%g %G %a %A", "0.000000 0.000000 0.000000 0.000000"},
      {"%hhd %hd %ld %lld %jd %zd %td %Lf", "0 0 0 0 0 0 0 0.000000"},
      {"[%5d] [%-5d] [%05d] [%-05d]", "[    0] [0    ] [00000] [0    ]"},
      {"[%+d] [% d] [%+ d] [%+u]", "[+0] [ 0] [+0] [0]"},
      {"[%.3d] [%6.3d] [%06.3d] [%.0d] [%.d]", "[000] [   000] [   000] [] []"},
      {"[%#x] [%#.0o] [%.0o]", "[0] [0] []"},
      {"[%.2f] [%.0f] [%#.0f] [%8.2f]", "[0.00] [0] [0.] [    0.00]"},
      {"[%08.2f] [%+08.2f] [%-8.2f] [% .1f]", "[00000.00] [+0000.00] [0.00    ] [ 0.0]"},
      {"[%*d] [%.*f]", "[0] [0]"},
      {"%y", "%y"},
      {"%5y%d", "%5y0"},
      {"%p %S %C %ws", "%p %S %C %ws"},
      {"%5%", "%5%"},
      {"100%: gone\n", "100%: gone\n"},
      {"%", "%"},
      {"%-08.3l", "%-08.3l"},
      {"\xE9%d\xFF", "\xE9\x30\xFF"},
  };
  for (const auto& example : cases) {
    EXPECT_EQ(FormatWithoutArguments(example.format), example.expected) << example.format;
  }
}

TEST(FormatWithoutArgumentsTest, KeepsToTheWidthOfStringsAndCharactersThatThereAreNone) {
  EXPECT_EQ(FormatWithoutArguments("%20s|%.2s|%5c|"), "(null)|(null)||");
}

TEST(FormatWithoutArgumentsTest, BoundsWhatOneConversionMakes) {
  EXPECT_EQ(FormatWithoutArguments("%256d"), std::string(255, ' ') + "0");
  EXPECT_EQ(FormatWithoutArguments("%257d"), std::string(255, ' ') + "0");
  EXPECT_EQ(FormatWithoutArguments("%999999999d.trc"), std::string(255, ' ') + "0.trc");
  EXPECT_EQ(FormatWithoutArguments("%-999999999d|"), "0" + std::string(255, ' ') + "|");
  EXPECT_EQ(FormatWithoutArguments("%099999999999999999999d"), std::string(256, '0'));
  EXPECT_EQ(FormatWithoutArguments("%.999999999d"), std::string(256, '0'));
  EXPECT_EQ(FormatWithoutArguments("%.999999999f"), "0." + std::string(254, '0'));
  EXPECT_EQ(FormatWithoutArguments("%+300.300f"), "+0." + std::string(253, '0'));
}

TEST(FormatWithoutArgumentsTest, TakesAnyBytes) {
  for (int first = 1; first < 256; ++first) {
    for (int second = 1; second < 256; ++second) {
      const std::string format = {'%', static_cast<char>(first), static_cast<char>(second)};
      EXPECT_LE(FormatWithoutArguments(format).size(), 256u);
    }
  }
}

}  // namespace
}  // namespace orvane
