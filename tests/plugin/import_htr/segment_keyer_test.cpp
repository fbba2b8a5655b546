#include "plugin/import_htr/segment_keyer.h"

#include <gtest/gtest.h>

#include "host/animation/class_ids.h"
#include "host/animation/tcb_controller.h"
#include "tests/plugin/import_htr/skeleton_fixture.h"
#include "tests/support/forwarding_interface.h"
#include "tests/support/throwing_instances.h"

namespace orvane {
namespace {

using test::ExpectRows;
using test::KeyTicks;
using test::Radians;
using Ticks = std::vector<TimeValue>;

// A bone, and the segment that is keyed on it: three frames from frame 1 on, 160 ticks each.
class SegmentKeyerTest : public test::SkeletonTest {
 protected:
  bool Run(HtrSegment& segment, const KeyTimes& times) {
    return SegmentKeyer(interface(), options_, times, bone_, segment).Run();
  }
  bool Run(HtrSegment& segment) { return Run(segment, times_); }

  host::PositionController& Position() { return bone_.Transform()->Position(); }
  host::RotationController& Rotation() { return bone_.Transform()->Rotation(); }
  host::SuspendableMode& AnimateMode() { return scene().Animation().AnimateMode(); }

  static void AddFrame(HtrSegment& segment, const Vector3& translation,
                       const Vector3& angles_deg = Vector3()) {
    segment.AddFrame(
        translation,
        Vector3(Radians(angles_deg.x()), Radians(angles_deg.y()), Radians(angles_deg.z())), 1.0);
  }

  // A segment whose frames are 10, 20 and 30 along the file's X.
  HtrSegment& AddMoving(const std::string& name, HtrSegment* parent = nullptr) {
    HtrSegment& segment = Add(name, parent);
    for (const double x : {10.0, 20.0, 30.0}) AddFrame(segment, Vector3(x, 0, 0));
    return segment;
  }

  // Another segment that is no root.
  HtrSegment& AddBelowRoot(const std::string& name) {
    HtrSegment* root = document_.FindSegment("Root");
    return Add(name, root == nullptr ? &Add("Root") : root);
  }

  host::Node& parent_ = AddBone("Parent");
  host::Node& bone_ = AddBone("Bone", &parent_);
  KeyTimes times_{160, 1, 3};
};

TEST_F(SegmentKeyerTest, EveryFrameIsKeyedAtItsTick) {
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{160, 320, 480}));
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{160, 320, 480}));
  EXPECT_EQ(Position().KeyValue(2), Point3(30, 0, 0));
}

TEST_F(SegmentKeyerTest, FramesAreOffsetsFromTheBase) {
  HtrSegment& segment = AddBelowRoot("Bone");
  segment.SetBaseTranslation(1, 2, 3);
  segment.SetBaseRotation(0, Radians(30), 0);
  AddFrame(segment, Vector3(10, 20, 30), Vector3(0, 60, 0));
  ASSERT_TRUE(Run(segment, KeyTimes(160, 1, 1)));
  EXPECT_EQ(Position().KeyValue(0), Point3(22, 33, 11));
  // 30 and 60 degrees about the file's Y, which is the bone's X.
  ExpectRows(bone_.LocalTransform(160), {1, 0, 0}, {0, 0, 1}, {0, -1, 0});
}

TEST_F(SegmentKeyerTest, TheFramesRotationIsAppliedBeforeTheBases) {
  HtrSegment& segment = AddBelowRoot("Bone");
  segment.SetBaseRotation(0, Radians(90), 0);       // the bone's X
  AddFrame(segment, Vector3(), Vector3(0, 0, 90));  // the bone's Y
  ASSERT_TRUE(Run(segment, KeyTimes(160, 1, 1)));
  // Column vectors: Rx(90) Ry(90). X goes by Ry to -Z, and by Rx to Y; Y stays, and goes to Z.
  ExpectRows(bone_.LocalTransform(160), {0, 1, 0}, {0, 0, 1}, {1, 0, 0});
}

TEST_F(SegmentKeyerTest, RootsAndOtherSegmentsConvertTheirOwnWay) {
  HtrSegment& root = Add("Root");
  AddFrame(root, Vector3(1, 2, 3));
  ASSERT_TRUE(Run(root, KeyTimes(160, 1, 1)));
  EXPECT_EQ(Position().KeyValue(0), Point3(1, -3, 2));
  ExpectRows(bone_.LocalTransform(160), {0, 0, 1}, {0, -1, 0}, {1, 0, 0});

  HtrSegment& child = AddBelowRoot("Child");
  AddFrame(child, Vector3(1, 2, 3));
  ASSERT_TRUE(Run(child, KeyTimes(160, 1, 1)));
  EXPECT_EQ(Position().KeyValue(0), Point3(2, 3, 1));
  ExpectRows(bone_.LocalTransform(160), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
}

TEST_F(SegmentKeyerTest, FramesBeyondTheFilesAreZero) {
  HtrSegment& segment = AddBelowRoot("Bone");
  segment.SetBaseTranslation(1, 2, 3);
  AddFrame(segment, Vector3(1, 1, 1));
  ASSERT_TRUE(Run(segment));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{160, 320, 480}));
  EXPECT_EQ(Position().KeyValue(0), Point3(3, 4, 2));
  EXPECT_EQ(Position().KeyValue(1), Point3(0, 0, 0));
}

TEST_F(SegmentKeyerTest, TheBasePositionIsKeyedOneFrameBefore) {
  options_.keyBasePosition = true;
  HtrSegment& segment = AddBelowRoot("Bone");
  segment.SetBaseTranslation(1, 2, 3);
  segment.SetBaseRotation(Radians(90), 0, 0);
  for (int i = 0; i < 3; ++i) AddFrame(segment, Vector3());
  ASSERT_TRUE(Run(segment));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{0, 160, 320, 480}));
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{0, 160, 320, 480}));
  EXPECT_EQ(Position().KeyValue(0), Point3(2, 3, 1));
  // A quarter turn about the file's X, the bone's Z.
  ExpectRows(bone_.LocalTransform(0), {0, 1, 0}, {-1, 0, 0}, {0, 0, 1});
}

TEST_F(SegmentKeyerTest, WithoutAnimationTheBasePositionIsKeyedAtTheCurrentTime) {
  options_.animate = false;
  options_.keyBasePosition = true;
  scene().Animation().SetTime(1234);
  ASSERT_TRUE(Run(AddMoving("Bone"), KeyTimes(160, 1, 1)));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{1234}));
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{1234}));
}

TEST_F(SegmentKeyerTest, WithoutAnimationTheFramesTicksAreClearedAllTheSame) {
  options_.animate = false;
  options_.keyBasePosition = true;
  for (const TimeValue tick : {159, 160, 319, 320}) Position().SetKey(tick, Point3(1, 1, 1));
  Rotation().SetKey(200, Quat());
  ASSERT_TRUE(Run(AddMoving("Bone"), KeyTimes(160, 1, 1)));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{0, 159, 320}));
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{0}));
}

TEST_F(SegmentKeyerTest, EveryTickOfTheFramesIsClearedAndNoOther) {
  Position().SetKey(159, Point3(1, 1, 1));
  Position().SetKey(161, Point3(2, 2, 2));
  Position().SetKey(639, Point3(3, 3, 3));
  Position().SetKey(640, Point3(4, 4, 4));
  Rotation().SetKey(159, Quat());
  Rotation().SetKey(333, Quat());
  Rotation().SetKey(640, Quat());
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{159, 160, 320, 480, 640}));
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{159, 160, 320, 480, 640}));
}

TEST_F(SegmentKeyerTest, TheBasePositionsOwnTickIsNotClearedButReplaced) {
  options_.keyBasePosition = true;
  Position().SetKey(0, Point3(9, 9, 9));
  Position().SetKey(1, Point3(8, 8, 8));
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{0, 1, 160, 320, 480}));
  EXPECT_EQ(Position().KeyValue(0), Point3(0, 0, 0));
}

TEST_F(SegmentKeyerTest, FramesWhoseTicksDoNotFitAreNeitherClearedNorKeyed) {
  const KeyTimes times(160, 13'421'771, 5);
  Position().SetKey(2'147'483'647, Point3(1, 1, 1));
  ASSERT_TRUE(Run(AddMoving("Bone"), times));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{2'147'483'360, 2'147'483'520}));
}

TEST_F(SegmentKeyerTest, ABasePositionWhoseTickDoesNotFitIsNotKeyed) {
  options_.keyBasePosition = true;
  ASSERT_TRUE(Run(AddMoving("Bone"), KeyTimes(160, -13'421'772, 3)));
  EXPECT_EQ(KeyTicks(Position()), (Ticks{-2'147'483'520, -2'147'483'360, -2'147'483'200}));
}

TEST_F(SegmentKeyerTest, TranslationsAreMultipliedByTheGlobalScale) {
  options_.scaleFactor = 2;
  options_.keyBasePosition = true;
  HtrSegment& segment = AddMoving("Bone");
  segment.SetBaseTranslation(1, 0, 0);
  ASSERT_TRUE(Run(segment));
  EXPECT_EQ(Position().KeyValue(0), Point3(2, 0, 0));
  EXPECT_EQ(Position().KeyValue(1), Point3(22, 0, 0));
}

TEST_F(SegmentKeyerTest, TheParentsScaleIsUndone) {
  options_.keyBasePosition = true;
  // Only the scale along the parent's X counts.
  parent_.Transform()->Scale().SetConstant(Point3(2, 5, 7));
  HtrSegment& segment = AddMoving("Bone");
  segment.SetBaseTranslation(0, 4, 0);
  ASSERT_TRUE(Run(segment));
  EXPECT_EQ(Position().KeyValue(0), Point3(0, 0, 2));
  EXPECT_EQ(Position().KeyValue(1), Point3(5, 0, 2));
}

TEST_F(SegmentKeyerTest, TheParentsScaleIsThatOfTheCurrentTime) {
  parent_.Transform()->Scale().SetKey(0, Point3(1, 1, 1));
  parent_.Transform()->Scale().SetKey(160, Point3(4, 4, 4));
  scene().Animation().SetTime(160);
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(Position().KeyValue(0), Point3(2.5F, 0, 0));
}

TEST_F(SegmentKeyerTest, AParentsScaleOf0CountsAs1) {
  parent_.Transform()->Scale().SetConstant(Point3(0, 1, 1));
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(Position().KeyValue(0), Point3(10, 0, 0));
}

// Its time moves on by a frame whenever it is asked for.
class PassingTime final : public test::ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;
  TimeValue GetTime() override { return 160 * asked_++; }
  TimeValue Asked() const { return asked_; }

 private:
  TimeValue asked_ = 0;
};

TEST_F(SegmentKeyerTest, TheParentsScaleIsAskedForAtEveryKeyedTranslation) {
  options_.keyBasePosition = true;
  const struct {
    TimeValue tick;
    float x;
  } scales[] = {{0, 1}, {160, 2}, {320, 2}, {480, 4}};
  for (const auto& at : scales) {
    parent_.Transform()->Scale().SetKey(at.tick, Point3(at.x, 1, 1));
  }
  HtrSegment& segment = Add("Bone");
  segment.SetBaseTranslation(12, 0, 0);
  for (int i = 0; i < 3; ++i) AddFrame(segment, Vector3());
  PassingTime passing(interface());
  ASSERT_TRUE(SegmentKeyer(passing, options_, times_, bone_, segment).Run());
  EXPECT_EQ(passing.Asked(), 4);
  EXPECT_EQ(Position().KeyValue(0), Point3(12, 0, 0));
  EXPECT_EQ(Position().KeyValue(1), Point3(6, 0, 0));
  EXPECT_EQ(Position().KeyValue(2), Point3(6, 0, 0));
  EXPECT_EQ(Position().KeyValue(3), Point3(3, 0, 0));
}

TEST_F(SegmentKeyerTest, AngleJumpsAreFollowedTheShortWay) {
  HtrSegment& segment = AddBelowRoot("Bone");
  AddFrame(segment, Vector3(), Vector3(179, 0, 0));
  AddFrame(segment, Vector3(), Vector3(-179, 0, 0));
  ASSERT_TRUE(Run(segment, KeyTimes(160, 1, 2)));
  // Keyed as 179 and 181 degrees about the bone's Z: halves of 89.5 and 90.5 degrees. (The host
  // stores the scalar negated.)
  const Quat first = Rotation().KeyValue(0);
  const Quat second = Rotation().KeyValue(1);
  EXPECT_NEAR(first.z, 0.99996192, 1e-6);
  EXPECT_NEAR(first.w, -0.00872654, 1e-6);
  EXPECT_NEAR(second.z * first.z + second.w * first.w, 0.99984770, 1e-6);
}

TEST_F(SegmentKeyerTest, WithEulerTheControllerStays) {
  host::RotationController* before = &Rotation();
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(&Rotation(), before);
}

TEST_F(SegmentKeyerTest, WithTcbTheControllerIsReplacedAndItsKeysAreKept) {
  options_.rotationController = 1;
  Rotation().SetKey(-800, Quat(0, 0, 1, 0));
  Rotation().SetKey(333, Quat(1, 0, 0, 0));  // among the frames: cleared before it is copied
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(Rotation().ClassID(), kTcbRotationClass);
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{-800, 160, 320, 480}));
  EXPECT_EQ(Rotation().KeyValue(0), Quat(0, 0, 1, 0));
}

TEST_F(SegmentKeyerTest, AHostThatRefusesTheTcbControllerKeepsTheOldOne) {
  options_.rotationController = 1;
  scene().Faults().RefuseRotationInstallation(true);
  host::RotationController* before = &Rotation();
  ASSERT_TRUE(Run(AddMoving("Bone")));
  EXPECT_EQ(&Rotation(), before);
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{160, 320, 480}));
  EXPECT_EQ(scene().LooseInstances(), 0U);
}

TEST_F(SegmentKeyerTest, AHostThatCannotMakeATcbControllerKeepsTheOldOne) {
  options_.rotationController = 1;
  test::RefusingInterface refusing(interface());
  refusing.RefuseInstance(1);
  host::RotationController* before = &Rotation();
  HtrSegment& segment = AddMoving("Bone");
  EXPECT_TRUE(SegmentKeyer(refusing, options_, times_, bone_, segment).Run());
  EXPECT_EQ(&Rotation(), before);
  EXPECT_EQ(KeyTicks(Rotation()), (Ticks{160, 320, 480}));
}

TEST_F(SegmentKeyerTest, ATcbControllerThatThrowsIsDeleted) {
  options_.rotationController = 1;
  test::ThrowingInstances throwing(interface());
  HtrSegment& segment = AddMoving("Bone");
  SegmentKeyer keyer(throwing, options_, times_, bone_, segment);
  EXPECT_THROW((void)keyer.Run(), std::bad_alloc);
  EXPECT_EQ(throwing.control.deletions, 1);
}

TEST_F(SegmentKeyerTest, AnimateModeIsLeftAsItWas) {
  for (const bool on : {false, true}) {
    AnimateMode().Set(on);
    ASSERT_TRUE(Run(AddMoving(on ? "On" : "Off")));
    EXPECT_EQ(AnimateMode().IsOn(), on);
    EXPECT_EQ(AnimateMode().SuspendDepth(), 0U);
  }
}

// Which query of a controller is refused, and how many keys there are then.
struct Refusal {
  std::size_t query;
  std::size_t position_keys;
  std::size_t rotation_keys;
};

class RefusedKeyTest : public SegmentKeyerTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedKeyTest, ARefusedKeyEndsTheStepAndLeavesAnimationSuspended) {
  options_.keyBasePosition = true;
  scene().Faults().RefuseQuery(GetParam().query);
  EXPECT_FALSE(Run(AddMoving("Bone")));
  EXPECT_EQ(Position().KeyCount(), GetParam().position_keys);
  EXPECT_EQ(Rotation().KeyCount(), GetParam().rotation_keys);
  EXPECT_EQ(AnimateMode().SuspendDepth(), 1U);
  EXPECT_TRUE(AnimateMode().IsOn());
}

INSTANTIATE_TEST_SUITE_P(Places, RefusedKeyTest,
                         testing::Values(Refusal{1, 0, 0},    // base position
                                         Refusal{2, 1, 0},    // base rotation
                                         Refusal{3, 1, 1},    // first frame's position
                                         Refusal{4, 2, 1},    // first frame's rotation
                                         Refusal{7, 3, 3}));  // third frame's position

TEST_F(SegmentKeyerTest, AMissingControllerRefuses) {
  bone_.Transform()->HidePositionController(true);
  EXPECT_FALSE(Run(AddMoving("A")));
  bone_.Transform()->HidePositionController(false);
  bone_.Transform()->HideRotationController(true);
  EXPECT_FALSE(Run(AddMoving("B")));
  options_.rotationController = 1;
  EXPECT_FALSE(Run(AddMoving("C")));
}

TEST_F(SegmentKeyerTest, ANodeUnderTheSceneRootHasNoParentsScaleToUndo) {
  HtrSegment& segment = AddMoving("Parent");
  ASSERT_TRUE(SegmentKeyer(interface(), options_, times_, parent_, segment).Run());
  EXPECT_EQ(parent_.Transform()->Position().KeyValue(0), Point3(10, 0, 0));
}

}  // namespace
}  // namespace orvane
