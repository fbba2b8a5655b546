#include "sdk/gfx/color.h"

#include <gtest/gtest.h>

namespace {

TEST(GetUIColor, GivesNewObjectsAVisibleColor) {
  const Color color = GetUIColor(23);
  for (const float part : {color.r, color.g, color.b}) {
    EXPECT_GT(part, 0.0F);
    EXPECT_LE(part, 1.0F);
  }
}

TEST(GetUIColor, IsBlackForAnUnknownIndex) {
  for (const int index : {-1, 0, 22, 24}) {
    const Color color = GetUIColor(index);
    EXPECT_EQ(color.r + color.g + color.b, 0.0F) << index;
  }
}

}  // namespace
