#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "formats/text/six_decimals.h"
#include "tests/support/printed_values.h"

namespace orvane {
namespace {

TEST(SixDecimals, AgreeWithTheLibraryOnTenMillionNumbers) {
  test::PrintedValues values(20240702);
  std::array<char, kLongestSixDecimals> buffer{};
  for (int round = 0; round < 10'000'000; ++round) {
    const double value = values.Next();
    const std::string_view written(buffer.data(), WriteSixDecimals(value, buffer.data()));
    if (written != test::AsTheLibraryPrints(value)) {
      FAIL() << written << " in place of " << test::AsTheLibraryPrints(value);
    }
  }
}

}  // namespace
}  // namespace orvane
