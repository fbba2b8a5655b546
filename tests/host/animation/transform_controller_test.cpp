#include "host/animation/transform_controller.h"

#include <gtest/gtest.h>

#include <memory>

#include "host/animation/class_ids.h"
#include "host/animation/euler_controller.h"
#include "host/animation/tcb_controller.h"
#include "host/base/compose.h"
#include "tests/host/animation/controller_fixture.h"
#include "tests/support/host_geometry.h"

namespace host {
namespace {

using test::ExpectNear;
using test::Turn;

class TransformControllerTest : public ControllerFixture, public testing::Test {
 protected:
  TcbController* LooseTcb() { return pool_.Add(std::make_unique<TcbController>(environment_)); }

  TransformController transform_{environment_};
};

TEST_F(TransformControllerTest, IsTheIdentityWithAnEulerRotationAtFirst) {
  EXPECT_EQ(transform_.ValueAt(0), Matrix3());
  EXPECT_EQ(transform_.ClassID(), kTransformClass);
  EXPECT_EQ(transform_.Rotation().ClassID(), kEulerRotationClass);
}

TEST_F(TransformControllerTest, OffersItsControllers) {
  EXPECT_EQ(transform_.GetPositionController(), &transform_.Position());
  EXPECT_EQ(transform_.GetRotationController(), &transform_.Rotation());
}

TEST_F(TransformControllerTest, CanHideItsControllers) {
  transform_.HidePositionController(true);
  EXPECT_EQ(transform_.GetPositionController(), nullptr);
  EXPECT_NE(transform_.GetRotationController(), nullptr);
  transform_.HideRotationController(true);
  EXPECT_EQ(transform_.GetRotationController(), nullptr);
}

TEST_F(TransformControllerTest, ScalesThenTurnsThenMoves) {
  transform_.Position().SetConstant(Point3(10, 20, 30));
  transform_.Rotation().SetConstant(Turn(0, 0, 1, 90));
  transform_.Scale().SetConstant(Point3(2, 3, 4));
  ExpectNear(transform_.ValueAt(0), Matrix3({0, 2, 0}, {-3, 0, 0}, {0, 0, 4}, {10, 20, 30}), 1e-6);
}

TEST_F(TransformControllerTest, FollowsItsControllersOverTime) {
  transform_.Position().SetKey(0, Point3(0, 0, 0));
  transform_.Position().SetKey(100, Point3(10, 0, 0));
  transform_.Rotation().SetKey(0, Turn(0, 0, 1, 0));
  transform_.Rotation().SetKey(100, Turn(0, 0, 1, 90));
  ExpectNear(transform_.ValueAt(50),
             ComposeMatrix(Point3(5, 0, 0), Turn(0, 0, 1, 45), Point3(1, 1, 1)), 1e-6);
}

TEST_F(TransformControllerTest, InstallsALooseRotationController) {
  transform_.SetListener(this);
  TcbController* tcb = LooseTcb();
  tcb->SetConstant(Turn(0, 0, 1, 90));
  EXPECT_TRUE(transform_.SetRotationController(tcb));
  EXPECT_EQ(transform_.GetRotationController(), tcb);
  EXPECT_EQ(pool_.Size(), 0U);
  EXPECT_EQ(changes_, 1);
  tcb->SetKey(0, Turn(0, 0, 1, 30));
  EXPECT_EQ(changes_, 2);
}

TEST_F(TransformControllerTest, LeavesARefusedRotationControllerToItsCaller) {
  Control* before = transform_.GetRotationController();
  TcbController* tcb = LooseTcb();
  faults_.RefuseRotationInstallation(true);
  EXPECT_FALSE(transform_.SetRotationController(tcb));
  EXPECT_EQ(transform_.GetRotationController(), before);
  EXPECT_EQ(pool_.Size(), 1U);
  tcb->Delete();
  EXPECT_EQ(pool_.Size(), 0U);
  EXPECT_EQ(misuse_.Count(), 0U);
}

TEST_F(TransformControllerTest, RefusesARotationControllerThatIsNotLoose) {
  EXPECT_FALSE(transform_.SetRotationController(transform_.GetRotationController()));
  EXPECT_FALSE(transform_.SetRotationController(nullptr));
  EXPECT_EQ(misuse_.Count(), 2U);
}

TEST_F(TransformControllerTest, RefusesAControllerThatIsNoRotation) {
  PositionController* position = pool_.Add(std::make_unique<PositionController>(environment_));
  EXPECT_FALSE(transform_.SetRotationController(position));
  EXPECT_EQ(pool_.Size(), 1U);
  EXPECT_EQ(misuse_.Count(), 1U);
}

TEST_F(TransformControllerTest, SetsAllThreeFromAMatrix) {
  const Matrix3 matrix = ComposeMatrix(Point3(1, 2, 3), Turn(0, 0, 1, 90), Point3(2, 2, 2));
  animate_.Set(true);
  transform_.SetValue(100, &matrix, 1, CTRL_ABSOLUTE);
  EXPECT_EQ(transform_.Position().KeyCount(), 1U);
  EXPECT_EQ(transform_.Rotation().KeyCount(), 1U);
  EXPECT_EQ(transform_.Scale().KeyCount(), 1U);
  ExpectNear(transform_.ValueAt(100), matrix, 1e-6);
}

TEST_F(TransformControllerTest, DeletesAndCopiesAllThree) {
  transform_.Position().SetKey(100, Point3(1, 2, 3));
  transform_.Rotation().SetKey(100, Turn(0, 0, 1, 90));
  transform_.Scale().SetKey(100, Point3(2, 2, 2));

  TransformController copy(environment_);
  copy.CopyFrom(&transform_);
  copy.CopyFrom(nullptr);
  EXPECT_EQ(copy.ValueAt(0), transform_.ValueAt(0));

  copy.DeleteKeyAt(100);
  EXPECT_EQ(copy.Position().KeyCount(), 0U);
  EXPECT_EQ(copy.Rotation().KeyCount(), 0U);
  EXPECT_EQ(copy.Scale().KeyCount(), 0U);
  EXPECT_EQ(copy.KeyCount(), 0U);
}

}  // namespace
}  // namespace host
