#include "host/animation/euler_controller.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "host/base/quaternion.h"
#include "tests/host/animation/controller_fixture.h"
#include "tests/support/host_geometry.h"

namespace host {
namespace {

using test::ExpectSameRotation;
using test::Turn;

Quat EulerDegrees(double x, double y, double z) {
  return ToQuat(FromEuler({test::Radians(x), test::Radians(y), test::Radians(z)}));
}

class EulerControllerTest : public ControllerFixture, public testing::Test {
 protected:
  void Set(TimeValue time, const Quat& value) {
    controller_.SetValue(time, &value, 1, SetMethod::kAbsolute);
  }

  EulerController controller_{environment_};
};

TEST_F(EulerControllerTest, StartsWithoutRotation) {
  ExpectSameRotation(controller_.ValueAt(0), Quat());
}

TEST_F(EulerControllerTest, InterpolatesTheThreeAngles) {
  controller_.SetKey(0, EulerDegrees(0, 0, 0));
  controller_.SetKey(100, EulerDegrees(40, 60, -80));
  ExpectSameRotation(controller_.ValueAt(25), EulerDegrees(10, 15, -20));
  ExpectSameRotation(controller_.ValueAt(50), EulerDegrees(20, 30, -40));
  ExpectSameRotation(controller_.ValueAt(75), EulerDegrees(30, 45, -60));
}

TEST_F(EulerControllerTest, TakesTheShorterWayAcrossAHalfTurn) {
  controller_.SetKey(0, Turn(0, 0, 1, 170));
  controller_.SetKey(100, Turn(0, 0, 1, -170));
  ExpectSameRotation(controller_.ValueAt(50), Turn(0, 0, 1, 180));
  ExpectSameRotation(controller_.ValueAt(25), Turn(0, 0, 1, 175));
}

TEST_F(EulerControllerTest, TakesTheShorterWayWhateverTheOrderOfItsKeys) {
  controller_.SetKey(100, Turn(0, 0, 1, -170));
  controller_.SetKey(0, Turn(0, 0, 1, 170));
  ExpectSameRotation(controller_.ValueAt(50), Turn(0, 0, 1, 180));
}

TEST_F(EulerControllerTest, IgnoresTheSignOfAQuaternion) {
  const Quat turn = Turn(0, 0, 1, 40);
  controller_.SetKey(0, Turn(0, 0, 1, 20));
  controller_.SetKey(100, Quat(-turn.x, -turn.y, -turn.z, -turn.w));
  ExpectSameRotation(controller_.ValueAt(50), Turn(0, 0, 1, 30));
}

TEST_F(EulerControllerTest, FollowsAPitchBeyondTheVertical) {
  for (int i = 0; i <= 18; ++i) controller_.SetKey(100 * i, Turn(0, 1, 0, 20.0 * i + 5.0));
  for (int i = 0; i < 18; ++i) {
    SCOPED_TRACE(i);
    ExpectSameRotation(controller_.ValueAt(100 * i + 50), Turn(0, 1, 0, 20.0 * i + 15.0), 1e-4);
  }
}

TEST_F(EulerControllerTest, FollowsManyTurns) {
  for (int i = 0; i <= 40; ++i) controller_.SetKey(100 * i, Turn(1, 0, 0, 50.0 * i));
  for (int i = 0; i < 40; ++i) {
    ExpectSameRotation(controller_.ValueAt(100 * i + 50), Turn(1, 0, 0, 50.0 * i + 25.0), 1e-5);
  }
}

TEST_F(EulerControllerTest, GoesOnByTheRemainderOfAWholeTurnToTheLastBit) {
  const double whole_turn = 2 * std::numbers::pi;
  for (const double before : {-30.0, -9.5, -6.3, -3.1, -0.7, 0.2, 0.9, 3.1, 6.3, 9.4, 9.5, 30.0}) {
    for (const double degrees : {-179.0, -90.0, -20.0, 0.0, 35.0, 120.0, 179.5}) {
      const Quat turn = Turn(0, 0, 1, degrees);
      controller_.DeleteAllKeys();
      controller_.SetKey(0, Quat(), {0, 0, before});
      controller_.SetKey(100, turn);
      const double angle = ToEuler(FromQuat(turn)).z;
      EXPECT_EQ(controller_.KeyAngles(1).z, before + std::remainder(angle - before, whole_turn))
          << "from " << before << " to " << degrees << " degrees";
    }
  }
}

TEST_F(EulerControllerTest, AKeyBetweenKeysGoesOnFromTheOneBefore) {
  // One rotation as two triples of angles, between which the tracks leave it.
  const Quat turn = Turn(0, 1, 0, 100);
  const Vector here{0, test::Radians(100), 0};
  const Vector there{test::Radians(180), test::Radians(80), test::Radians(180)};
  controller_.SetKey(0, turn, here);
  controller_.SetKey(100, turn, there);
  controller_.SetKey(300, turn, here);
  controller_.SetKey(200, turn);
  ExpectSameRotation(controller_.ValueAt(150), turn);
}

TEST_F(EulerControllerTest, ShiftsItsThreeTracks) {
  controller_.SetKey(0, EulerDegrees(10, 20, 30));
  controller_.SetKey(100, EulerDegrees(20, 10, 50));
  Set(50, EulerDegrees(25, 25, 45));
  ExpectSameRotation(controller_.KeyValue(0), EulerDegrees(20, 30, 35));
  ExpectSameRotation(controller_.KeyValue(1), EulerDegrees(30, 20, 55));
  ExpectSameRotation(controller_.ValueAt(50), EulerDegrees(25, 25, 45));
}

TEST_F(EulerControllerTest, ARelativeTurnIsInTheSpaceOfTheParent) {
  const Quat about_x = Turn(1, 0, 0, 90);
  const Quat about_z = Turn(0, 0, 1, 90);
  Set(0, about_x);
  controller_.SetValue(0, &about_z, 1, SetMethod::kRelative);
  ExpectSameRotation(controller_.ValueAt(0), ToQuat(Product(FromQuat(about_x), FromQuat(about_z))));
}

}  // namespace
}  // namespace host
