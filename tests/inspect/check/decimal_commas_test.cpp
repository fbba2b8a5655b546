#include "inspect/check/decimal_commas.h"

#include <gtest/gtest.h>

namespace {

using orvane::DecimalCommas;
using orvane::FindingPlace;

TEST(DecimalCommas, AreNumbersButForTheComma) {
  for (const char* const cell : {"12,5", "-0,25", "1,00", "6,02E+23"}) {
    EXPECT_TRUE(DecimalCommas().Take(cell, FindingPlace{})) << cell;
  }
  for (const char* const cell :
       {"12.5", "1,5,5", "1.234,5", "1,234.5", ",5", "5,", "a,5", "1,5mm"}) {
    EXPECT_FALSE(DecimalCommas().Take(cell, FindingPlace{})) << cell;
  }
}

}  // namespace
