#include "plugin/exchange/wire_color.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(WireColorOfTest, HasRedInItsLowestByteAndBlueInItsThird) {
  EXPECT_EQ(WireColorOf(204, 51, 25), 0x1933CCU);
  EXPECT_EQ(WireColorOf(255, 0, 0), 0x0000FFU);
  EXPECT_EQ(WireColorOf(0, 255, 0), 0x00FF00U);
  EXPECT_EQ(WireColorOf(0, 0, 255), 0xFF0000U);
}

TEST(WireColorOfTest, TakesTheLowestEightBitsOfEachPart) {
  EXPECT_EQ(WireColorOf(0x1FF, 0x302, static_cast<unsigned>(-1)), 0xFF02FFU);
}

}  // namespace
}  // namespace orvane
