#include "host/animation/vector_controller.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/host/animation/controller_fixture.h"
#include "tests/support/host_geometry.h"

namespace host {
namespace {

class VectorControllerTest : public ControllerFixture, public testing::Test {
 protected:
  void Change(VectorController& controller, TimeValue time, const Point3& change) {
    controller.SetValue(time, &change, 1, SetMethod::kRelative);
  }
  void Set(VectorController& controller, TimeValue time, const Point3& value) {
    controller.SetValue(time, &value, 1, SetMethod::kAbsolute);
  }

  PositionController position_{environment_};
  ScaleController scale_{environment_};
};

TEST_F(VectorControllerTest, StartsAtTheOriginAndAtFullSize) {
  EXPECT_EQ(position_.ValueAt(0), Point3());
  EXPECT_EQ(scale_.ValueAt(0), Point3(1, 1, 1));
}

TEST_F(VectorControllerTest, InterpolatesLinearly) {
  position_.SetKey(-100, Point3(0, 10, -4));
  position_.SetKey(100, Point3(8, 20, -4));
  position_.SetKey(200, Point3(8, 0, -4));
  EXPECT_EQ(position_.ValueAt(-50), Point3(2, 12.5F, -4));
  EXPECT_EQ(position_.ValueAt(0), Point3(4, 15, -4));
  EXPECT_EQ(position_.ValueAt(150), Point3(8, 10, -4));
}

TEST_F(VectorControllerTest, InterpolatesAcrossTheWholeRangeOfTime) {
  position_.SetKey(std::numeric_limits<TimeValue>::min(), Point3(-1, 0, 0));
  position_.SetKey(std::numeric_limits<TimeValue>::max(), Point3(1, 0, 0));
  test::ExpectNear(position_.ValueAt(0), Point3(), 1e-6);
}

TEST_F(VectorControllerTest, ShiftedPositionsMoveAlike) {
  position_.SetKey(0, Point3(1, 2, 3));
  position_.SetKey(160, Point3(4, 5, 6));
  Set(position_, 0, Point3(11, 2, 2));
  EXPECT_EQ(position_.KeyValue(0), Point3(11, 2, 2));
  EXPECT_EQ(position_.KeyValue(1), Point3(14, 5, 5));
}

TEST_F(VectorControllerTest, ShiftedScalesGrowAlike) {
  scale_.SetKey(0, Point3(1, 2, 0));
  scale_.SetKey(160, Point3(3, 4, 5));
  Set(scale_, 0, Point3(2, 1, 7));
  EXPECT_EQ(scale_.KeyValue(0), Point3(2, 1, 7));
  EXPECT_EQ(scale_.KeyValue(1), Point3(6, 2, 12));
}

TEST_F(VectorControllerTest, RelativeValuesAddToPositionsAndMultiplyScales) {
  Set(position_, 0, Point3(1, 2, 3));
  Change(position_, 0, Point3(10, 0, -1));
  EXPECT_EQ(position_.Constant(), Point3(11, 2, 2));
  Set(scale_, 0, Point3(1, 2, 3));
  Change(scale_, 0, Point3(2, 2, 0.5F));
  EXPECT_EQ(scale_.Constant(), Point3(2, 4, 1.5F));
}

TEST_F(VectorControllerTest, RelativeValuesMakeKeysWhileAnimateIsOn) {
  position_.SetKey(0, Point3(0, 0, 0));
  position_.SetKey(200, Point3(2, 2, 2));
  animate_.Set(true);
  Change(position_, 100, Point3(5, 0, 0));
  ASSERT_EQ(position_.KeyCount(), 3U);
  EXPECT_EQ(position_.KeyValue(1), Point3(6, 1, 1));
  EXPECT_EQ(position_.KeyValue(2), Point3(2, 2, 2));
}

TEST_F(VectorControllerTest, RelativeValuesShiftKeysWhileAnimateIsOff) {
  position_.SetKey(0, Point3(0, 0, 0));
  position_.SetKey(200, Point3(2, 2, 2));
  Change(position_, 100, Point3(5, 0, 0));
  EXPECT_EQ(position_.KeyValue(0), Point3(5, 0, 0));
  EXPECT_EQ(position_.KeyValue(1), Point3(7, 2, 2));
}

}  // namespace
}  // namespace host
