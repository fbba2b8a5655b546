#include "formats/text/number_faults.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

struct FaultCase {
  std::string cell;
  NumberFault as_number;
  NumberFault as_whole_number;
};

TEST(NumberFaults, AreNotLookedForInPlainDecimals) {
  const std::string longest = "-123456789012345.678901234567890";
  for (const std::string cell : {"0", "12", "-12", "12.5", "-.5", "5.", longest.c_str() + 1}) {
    EXPECT_TRUE(IsPlainDecimal(cell)) << cell;
    EXPECT_EQ(FaultOfNumber(cell), NumberFault::kNone) << cell;
  }
  for (const std::string cell : {"", "-", ".", "-.", "+1", "--1", "1-", "1.2.3", "1e3", "1,5", " 1",
                                 "1 ", "nan", longest.c_str()}) {
    EXPECT_FALSE(IsPlainDecimal(cell)) << cell;
  }
}

TEST(NumberFaults, AreToldOfRealAndOfWholeNumbers) {
  using enum NumberFault;
  for (const FaultCase& c : {
           FaultCase{"", kMissing, kMissing},
           FaultCase{"12", kNone, kNone},
           FaultCase{"-0", kNone, kNone},
           FaultCase{"60.00", kNone, kNone},
           FaultCase{"59.94", kNone, kCut},
           FaultCase{"-2147483648", kNone, kNone},
           FaultCase{"2147483647", kNone, kNone},
           FaultCase{"2147483648", kNone, kOutOfBounds},
           FaultCase{"-2147483649", kNone, kOutOfBounds},
           FaultCase{"3.4e38", kNone, kOutOfBounds},
           FaultCase{"-3.4e38", kNone, kOutOfBounds},
           FaultCase{"3.5e38", kOutOfBounds, kOutOfBounds},
           FaultCase{"-3.5e38", kOutOfBounds, kOutOfBounds},
           FaultCase{"1e999", kOutOfBounds, kOutOfBounds},
           FaultCase{"-1e999", kOutOfBounds, kOutOfBounds},
           FaultCase{"1e-999", kNone, kCut},
           FaultCase{"12mm", kUnreadable, kUnreadable},
           FaultCase{"4,5", kUnreadable, kUnreadable},
           FaultCase{"nan", kUnreadable, kUnreadable},
           FaultCase{"inf", kUnreadable, kUnreadable},
           FaultCase{" 1", kUnreadable, kUnreadable},
           FaultCase{"1 ", kUnreadable, kUnreadable},
       }) {
    EXPECT_EQ(FaultOfNumber(c.cell), c.as_number) << c.cell;
    EXPECT_EQ(FaultOfWholeNumber(c.cell), c.as_whole_number) << c.cell;
  }
}

}  // namespace
}  // namespace orvane
