#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "formats/math/euler_rotation.h"
#include "tests/support/tolerances.h"

namespace orvane {
namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;

double Continued(double current, double previous) {
  return ContinueEulerRotation(EulerRotation(current, 0, 0), EulerRotation(previous, 0, 0))[0];
}

TEST(EulerContinuity, SubtractsATurn) { EXPECT_EQ(Continued(3.5, 0), 3.5 - kTwoPi); }

TEST(EulerContinuity, AddsATurn) { EXPECT_EQ(Continued(-3.5, 0), -3.5 + kTwoPi); }

TEST(EulerContinuity, LeavesADifferenceOfExactlyHalfATurn) {
  EXPECT_EQ(Continued(kPi, 0), kPi);
  EXPECT_EQ(Continued(-kPi, 0), -kPi);
}

TEST(EulerContinuity, SubtractsAsManyTurnsAsItTakes) {
  EXPECT_EQ(Continued(10, 0), 10 - kTwoPi - kTwoPi);
  EXPECT_EQ(Continued(-10, 0), -10 + kTwoPi + kTwoPi);
}

TEST(EulerContinuity, FollowsThePreviousAngleAcrossHalfATurn) {
  const double degree = kPi / 180;
  EXPECT_NEAR(Continued(-179 * degree, 179 * degree), 181 * degree, test::kTurnedAngle_rad);
  EXPECT_NEAR(Continued(179 * degree, -179 * degree), -181 * degree, test::kTurnedAngle_rad);
  EXPECT_NEAR(Continued(0.1, 50.0), 0.1 + 8 * kTwoPi, test::kTurnedAngle_rad);
}

TEST(EulerContinuity, TreatsEachAngleOnItsOwn) {
  const EulerRotation result =
      ContinueEulerRotation(EulerRotation(3.5, 0.5, -3.5), EulerRotation(0, 0, 0));
  EXPECT_EQ(result[0], 3.5 - kTwoPi);
  EXPECT_EQ(result[1], 0.5);
  EXPECT_EQ(result[2], -3.5 + kTwoPi);
  EXPECT_EQ(result.order().code(), 0u);
}

TEST(EulerContinuity, ComparesEachAngleWithThePreviousOneOfTheSameAxis) {
  const EulerRotation result =
      ContinueEulerRotation(EulerRotation(0.1, 0.5, -0.5), EulerRotation(0, 7, -13));
  EXPECT_EQ(result[0], 0.1);
  EXPECT_EQ(result[1], 0.5 + kTwoPi);
  EXPECT_EQ(result[2], -0.5 - kTwoPi - kTwoPi);
}

TEST(EulerContinuity, LeavesItsArgumentsAlone) {
  const EulerRotation current(3.5, 0, 0);
  const EulerRotation previous;
  (void)ContinueEulerRotation(current, previous);
  EXPECT_EQ(current[0], 3.5);
  EXPECT_EQ(previous[0], 0.0);
}

// A file may hold any number; none may keep the subtraction of turns going for ever.
TEST(EulerContinuity, ComesToAnEndWhateverTheAngles) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Continued(infinity, 0), infinity);
  EXPECT_EQ(Continued(-infinity, 0), -infinity);
  EXPECT_EQ(Continued(1, infinity), 1);
  EXPECT_TRUE(std::isnan(Continued(std::nan(""), 0)));
  EXPECT_EQ(Continued(1, std::nan("")), 1);
  for (double huge : {1e6, 1e15, 1e300}) {
    EXPECT_LE(std::abs(Continued(huge, 0.25) - 0.25), kPi);
    EXPECT_LE(std::abs(Continued(-huge, 0.25) - 0.25), kPi);
  }
  EXPECT_EQ(Continued(0, 1e300), 1e300);
  EXPECT_EQ(Continued(-1.7e308, 1.7e308), -1.7e308);
  EXPECT_EQ(Continued(1e17, 1e17 + 32), 1e17 + 32);
  EXPECT_EQ(Continued(1e17 + 32, 1e17), 1e17);
}

TEST(EulerContinuity, FollowsABodyThatSpinsForALongTime) {
  const double step = 170 * kPi / 180;
  EulerRotation previous;
  for (int frame = 1; frame <= 2000; ++frame) {
    const double wrapped = std::remainder(frame * step, kTwoPi);
    previous = ContinueEulerRotation(EulerRotation(wrapped, 0, 0), previous);
    ASSERT_NEAR(previous[0], frame * step, 1e-9);
  }
}

}  // namespace
}  // namespace orvane
