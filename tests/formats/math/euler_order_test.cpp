#include "formats/math/euler_order.h"

#include <gtest/gtest.h>

#include "tests/formats/math/reference.h"

namespace orvane {
namespace {

TEST(EulerOrder, ZeroIsStaticEvenXYZ) {
  const OrvaneEulerOrder::Axes axes = OrvaneEulerOrder().Decode();
  EXPECT_EQ(axes.i, 0u);
  EXPECT_EQ(axes.j, 1u);
  EXPECT_EQ(axes.k, 2u);
  EXPECT_FALSE(axes.odd_parity);
  EXPECT_FALSE(axes.repeats_first_axis);
  EXPECT_FALSE(axes.rotating_frame);
}

TEST(EulerOrder, FourDiffersFromZeroOnlyInParity) {
  const OrvaneEulerOrder::Axes axes = OrvaneEulerOrder(4).Decode();
  EXPECT_EQ(axes.i, 0u);
  EXPECT_EQ(axes.j, 2u);
  EXPECT_EQ(axes.k, 1u);
  EXPECT_TRUE(axes.odd_parity);
  EXPECT_FALSE(axes.repeats_first_axis);
  EXPECT_FALSE(axes.rotating_frame);
}

// All 24 codes: the axes that the angles turn about, in the order of the convention's name.
TEST(EulerOrder, DecodesEveryCode) {
  for (const reference::Convention& convention : reference::kConventions) {
    SCOPED_TRACE(convention.code);
    const OrvaneEulerOrder::Axes axes = OrvaneEulerOrder(convention.code).Decode();
    const char first = "XYZ"[axes.i];
    const char second = "XYZ"[axes.j];
    const char third = axes.repeats_first_axis ? first : "XYZ"[axes.k];
    const std::string_view name = convention.axes;
    EXPECT_EQ(axes.rotating_frame, convention.rotating);
    EXPECT_EQ(convention.rotating ? third : first, name[0]);
    EXPECT_EQ(second, name[1]);
    EXPECT_EQ(convention.rotating ? first : third, name[2]);
    EXPECT_EQ(axes.i + axes.j + axes.k, 3u);
    EXPECT_EQ(axes.odd_parity, axes.j == (axes.i + 2) % 3);
  }
}

TEST(EulerOrder, ReadsAnInnerAxisOfThreeAsX) {
  for (unsigned int flags = 0; flags < 8; ++flags) {
    const OrvaneEulerOrder::Axes three = OrvaneEulerOrder((3u << 3) | flags).Decode();
    const OrvaneEulerOrder::Axes zero = OrvaneEulerOrder(flags).Decode();
    EXPECT_EQ(three.i, zero.i);
    EXPECT_EQ(three.j, zero.j);
    EXPECT_EQ(three.k, zero.k);
    EXPECT_EQ(three.odd_parity, zero.odd_parity);
    EXPECT_EQ(three.repeats_first_axis, zero.repeats_first_axis);
    EXPECT_EQ(three.rotating_frame, zero.rotating_frame);
  }
}

TEST(EulerOrder, IgnoresBitsBeyondItsFields) {
  const OrvaneEulerOrder::Axes axes = OrvaneEulerOrder(0xFFFFFFE4).Decode();
  EXPECT_EQ(axes.i, 0u);
  EXPECT_EQ(axes.j, 2u);
  EXPECT_EQ(OrvaneEulerOrder(0xFFFFFFE4).code(), 0xFFFFFFE4u);
}

TEST(EulerOrder, IsAValue) {
  const OrvaneEulerOrder original(20);
  OrvaneEulerOrder copy(4);
  copy = original;
  EXPECT_EQ(copy.code(), 20u);
}

}  // namespace
}  // namespace orvane
