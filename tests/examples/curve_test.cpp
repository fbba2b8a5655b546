#include "examples/curve.h"

#include <gtest/gtest.h>

namespace examples {
namespace {

TEST(Curve, GoesThroughItsKeysAndStaysAtItsEnds) {
  const Curve curve({{0, 1}, {1, 3}, {4, 2}});
  EXPECT_EQ(curve.At(0), 1.0);
  EXPECT_EQ(curve.At(1), 3.0);
  EXPECT_EQ(curve.At(4), 2.0);
  EXPECT_EQ(curve.At(-5), 1.0);
  EXPECT_EQ(curve.At(5), 2.0);
}

TEST(Curve, NeverOvershootsItsKeys) {
  const Curve curve({{0, 0}, {1, 0}, {1.1, 10}, {3, 10}});
  for (int step = 0; step <= 300; ++step) {
    EXPECT_GE(curve.At(step / 100.0), -1e-12);
    EXPECT_LE(curve.At(step / 100.0), 10.0 + 1e-12);
  }
}

}  // namespace
}  // namespace examples
