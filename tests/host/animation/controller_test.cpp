#include "host/animation/controller.h"

#include <gtest/gtest.h>

#include <memory>

#include "host/animation/class_ids.h"
#include "host/animation/euler_controller.h"
#include "host/animation/tcb_controller.h"
#include "host/animation/vector_controller.h"
#include "tests/host/animation/controller_fixture.h"
#include "tests/support/host_geometry.h"

// What all controllers do alike, whatever they control.

namespace host {
namespace {

// Four values of each kind, far enough from one another to be told apart.
Point3 Example(const Point3* /*kind*/, int i) {
  return {1.0F + static_cast<float>(i), 2.0F * static_cast<float>(i + 1), -3.5F};
}
Quat Example(const Quat* /*kind*/, int i) { return test::Turn(0, 0.6, 0.8, 10.0 + 20.0 * i); }

void ExpectNearValue(const Point3& actual, const Point3& expected) {
  test::ExpectNear(actual, expected, 1e-5);
}
void ExpectNearValue(const Quat& actual, const Quat& expected) {
  test::ExpectSameRotation(actual, expected);
}

template <typename Kind>
class ControllerTest : public ControllerFixture, public testing::Test {
 public:
  using Value = decltype(std::declval<Kind>().Constant());

 protected:
  static Value Example(int i) { return host::Example(static_cast<const Value*>(nullptr), i); }
  void Set(TimeValue time, const Value& value) {
    controller_.SetValue(time, &value, 1, CTRL_ABSOLUTE);
  }

  Kind controller_{environment_};
};

using Kinds = testing::Types<PositionController, ScaleController, EulerController, TcbController>;
TYPED_TEST_SUITE(ControllerTest, Kinds);

TYPED_TEST(ControllerTest, WithoutKeysHasOneValue) {
  this->Set(100, this->Example(1));
  EXPECT_EQ(this->controller_.KeyCount(), 0U);
  for (const TimeValue time : {-5000, 0, 100, 5000}) {
    EXPECT_EQ(this->controller_.ValueAt(time), this->Example(1));
  }
  EXPECT_EQ(this->controller_.Constant(), this->Example(1));
}

TYPED_TEST(ControllerTest, MakesAKeyWhileAnimateIsOn) {
  this->animate_.Set(true);
  this->Set(320, this->Example(0));
  this->Set(-160, this->Example(1));
  ASSERT_EQ(this->controller_.KeyCount(), 2U);
  EXPECT_EQ(this->controller_.KeyTick(0), -160);
  EXPECT_EQ(this->controller_.KeyTick(1), 320);
  EXPECT_EQ(this->controller_.KeyValue(0), this->Example(1));
  EXPECT_EQ(this->controller_.KeyValue(1), this->Example(0));
}

TYPED_TEST(ControllerTest, ReplacesTheKeyAtThatTickAndNoOther) {
  this->animate_.Set(true);
  for (int i = 0; i < 3; ++i) this->Set(160 * i, this->Example(i));
  this->Set(160, this->Example(3));
  ASSERT_EQ(this->controller_.KeyCount(), 3U);
  EXPECT_EQ(this->controller_.KeyValue(0), this->Example(0));
  EXPECT_EQ(this->controller_.KeyValue(1), this->Example(3));
  EXPECT_EQ(this->controller_.KeyValue(2), this->Example(2));
}

TYPED_TEST(ControllerTest, GivesBackAtEachKeyExactlyWhatWasSet) {
  this->animate_.Set(true);
  for (int i = 0; i < 4; ++i) this->Set(77 * i - 100, this->Example(i));
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(this->controller_.ValueAt(77 * i - 100), this->Example(i));
  }
}

TYPED_TEST(ControllerTest, HoldsBeforeTheFirstAndAfterTheLastKey) {
  this->animate_.Set(true);
  for (int i = 0; i < 3; ++i) this->Set(160 * i, this->Example(i));
  EXPECT_EQ(this->controller_.ValueAt(-1), this->Example(0));
  EXPECT_EQ(this->controller_.ValueAt(-100000), this->Example(0));
  EXPECT_EQ(this->controller_.ValueAt(321), this->Example(2));
  EXPECT_EQ(this->controller_.ValueAt(100000), this->Example(2));
}

TYPED_TEST(ControllerTest, ShiftsAllKeysWhileAnimateIsOff) {
  this->animate_.Set(true);
  this->Set(0, this->Example(0));
  this->Set(160, this->Example(1));
  this->animate_.Set(false);
  this->Set(160, this->Example(2));
  ASSERT_EQ(this->controller_.KeyCount(), 2U);
  EXPECT_EQ(this->controller_.ValueAt(160), this->Example(2));
  EXPECT_NE(this->controller_.ValueAt(0), this->Example(0));
}

TYPED_TEST(ControllerTest, ShiftsItsOnlyKeyToo) {
  this->Set(0, this->Example(3));
  this->animate_.Set(true);
  this->Set(160, this->Example(0));
  this->animate_.Set(false);
  this->Set(50, this->Example(2));
  ASSERT_EQ(this->controller_.KeyCount(), 1U);
  ExpectNearValue(this->controller_.KeyValue(0), this->Example(2));
  EXPECT_EQ(this->controller_.Constant(), this->Example(3));
}

TYPED_TEST(ControllerTest, AShiftBetweenKeysGivesTheValueThere) {
  this->animate_.Set(true);
  for (int i = 0; i < 4; ++i) this->Set(160 * i, this->Example(3 - i));
  this->animate_.Set(false);
  for (const TimeValue time : {-50, 40, 250, 320, 400, 800}) {
    SCOPED_TRACE(time);
    this->Set(time, this->Example(2));
    ExpectNearValue(this->controller_.ValueAt(time), this->Example(2));
  }
  EXPECT_EQ(this->controller_.KeyCount(), 4U);
}

TYPED_TEST(ControllerTest, DeletesTheKeyAtExactlyThatTick) {
  this->animate_.Set(true);
  for (int i = 0; i < 3; ++i) this->Set(160 * i, this->Example(i));
  this->controller_.DeleteKeyAt(159);
  this->controller_.DeleteKeyAt(161);
  EXPECT_EQ(this->controller_.KeyCount(), 3U);
  this->controller_.DeleteKeyAt(160);
  ASSERT_EQ(this->controller_.KeyCount(), 2U);
  EXPECT_EQ(this->controller_.KeyTick(1), 320);
}

TYPED_TEST(ControllerTest, HasItsConstantAgainWhenAllKeysAreGone) {
  this->Set(0, this->Example(3));
  this->animate_.Set(true);
  this->Set(0, this->Example(0));
  this->controller_.DeleteKeyAt(0);
  EXPECT_EQ(this->controller_.ValueAt(0), this->Example(3));
}

TYPED_TEST(ControllerTest, CopiesValueAndKeys) {
  TypeParam source(this->environment_);
  const auto constant = this->Example(3);
  source.SetValue(0, &constant, 1, CTRL_ABSOLUTE);
  source.SetKey(0, this->Example(0));
  source.SetKey(160, this->Example(1));
  this->controller_.SetKey(999, this->Example(2));

  this->controller_.CopyFrom(&source);
  ASSERT_EQ(this->controller_.KeyCount(), 2U);
  EXPECT_EQ(this->controller_.KeyTick(1), 160);
  EXPECT_EQ(this->controller_.KeyValue(0), this->Example(0));
  EXPECT_EQ(this->controller_.KeyValue(1), this->Example(1));
  EXPECT_EQ(this->controller_.Constant(), this->Example(3));
}

TYPED_TEST(ControllerTest, CopyingFromNothingOrFromItselfChangesNothing) {
  this->controller_.SetKey(160, this->Example(1));
  this->controller_.CopyFrom(nullptr);
  this->controller_.CopyFrom(&this->controller_);
  EXPECT_EQ(this->controller_.KeyCount(), 1U);
  EXPECT_EQ(this->controller_.ValueAt(160), this->Example(1));
}

TYPED_TEST(ControllerTest, TellsItsListenerOfEveryChangeAndOfNothingElse) {
  this->controller_.SetListener(this);
  this->Set(0, this->Example(0));
  EXPECT_EQ(this->changes_, 1);
  this->animate_.Set(true);
  this->Set(0, this->Example(1));
  EXPECT_EQ(this->changes_, 2);
  this->animate_.Set(false);
  this->Set(0, this->Example(2));
  EXPECT_EQ(this->changes_, 3);
  this->controller_.DeleteKeyAt(1);
  EXPECT_EQ(this->changes_, 3);
  this->controller_.DeleteKeyAt(0);
  EXPECT_EQ(this->changes_, 4);
  this->controller_.ValueAt(0);
  EXPECT_EQ(this->changes_, 4);
  this->controller_.DeleteAllKeys();
  EXPECT_EQ(this->changes_, 5);
}

TYPED_TEST(ControllerTest, HasNoControllersWithinIt) {
  EXPECT_EQ(this->controller_.GetPositionController(), nullptr);
  EXPECT_EQ(this->controller_.GetRotationController(), nullptr);
  TcbController rotation(this->environment_);
  EXPECT_FALSE(this->controller_.SetRotationController(&rotation));
}

TYPED_TEST(ControllerTest, AcceptsValuesUntilItsGateIsClosed) {
  EXPECT_NE(this->controller_.CanAcceptValue(), 0);
  this->controller_.CloseGate(true);
  EXPECT_EQ(this->controller_.CanAcceptValue(), 0);
  this->controller_.CloseGate(false);
  EXPECT_NE(this->controller_.CanAcceptValue(), 0);
}

TYPED_TEST(ControllerTest, MayCarryAnotherClass) {
  this->controller_.SetClassId(kCharacterTransformClasses[1]);
  EXPECT_EQ(this->controller_.ClassID(), (ClassId{37206, 0}));
}

class FaultsTest : public ControllerFixture, public testing::Test {};

TEST_F(FaultsTest, RefuseTheQueryTheyAreToldTo) {
  PositionController position(environment_);
  TcbController rotation(environment_);
  faults_.RefuseQuery(3);
  EXPECT_NE(position.CanAcceptValue(), 0);
  EXPECT_NE(rotation.CanAcceptValue(), 0);
  EXPECT_EQ(position.CanAcceptValue(), 0);
  EXPECT_NE(rotation.CanAcceptValue(), 0);
  EXPECT_EQ(faults_.QueryCount(), 4U);
  faults_.RefuseQuery(1);
  EXPECT_EQ(rotation.CanAcceptValue(), 0);
  faults_.RefuseQuery(1);
  faults_.RefuseQuery(0);
  EXPECT_NE(rotation.CanAcceptValue(), 0);
}

TEST_F(FaultsTest, ClosedGatesCountAsQueries) {
  PositionController position(environment_);
  position.CloseGate(true);
  faults_.RefuseQuery(2);
  EXPECT_EQ(position.CanAcceptValue(), 0);
  position.CloseGate(false);
  EXPECT_EQ(position.CanAcceptValue(), 0);
  EXPECT_NE(position.CanAcceptValue(), 0);
}

TEST_F(FaultsTest, CopyingBetweenPositionAndScaleDoesNothing) {
  PositionController position(environment_);
  ScaleController scale(environment_);
  position.SetKey(0, Point3(7, 8, 9));
  scale.CopyFrom(&position);
  EXPECT_EQ(scale.KeyCount(), 0U);
  EXPECT_EQ(scale.ValueAt(0), Point3(1, 1, 1));
}

TEST_F(FaultsTest, ControllersHaveTheirClasses) {
  PositionController position(environment_);
  ScaleController scale(environment_);
  EulerController euler(environment_);
  TcbController tcb(environment_);
  EXPECT_EQ(position.SuperClassID(), kPositionControllerSuperClass);
  EXPECT_EQ(scale.SuperClassID(), kScaleControllerSuperClass);
  EXPECT_EQ(euler.SuperClassID(), 0x900CU);
  EXPECT_EQ(tcb.SuperClassID(), 0x900CU);
  EXPECT_EQ(tcb.ClassID(), (ClassId{0x442313, 0}));
  EXPECT_EQ(euler.ClassID(), kEulerRotationClass);
}

TEST_F(FaultsTest, OnlyALooseControllerMayBeDeleted) {
  TcbController* loose = pool_.Add(std::make_unique<TcbController>(environment_));
  loose->Delete();
  EXPECT_EQ(pool_.Size(), 0U);
  EXPECT_EQ(misuse_.Count(), 0U);
  const auto held = std::make_unique<TcbController>(environment_);
  held->Delete();
  EXPECT_EQ(misuse_.Count(), 1U);
}

}  // namespace
}  // namespace host
