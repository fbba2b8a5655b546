#include "plugin/export_htr/bone_pose.h"

#include <numbers>

#include "formats/math/euler_rotation.h"
#include "tests/plugin/export_htr/sampling_fixture.h"

namespace orvane {
namespace {

using test::ExpectAngles;
using test::ExpectVector;

class BonePoseTest : public test::SamplingTest {
 protected:
  static BonePose PoseAt(TimeValue time, const BonePoseReader& reader) {
    return reader.Pose(reader.Read(time));
  }
  static EulerRotation Angles(const BonePose& pose) { return EulerRotation(pose.rotation); }
  static bool HasObjectOffset(const BonePoseReader& reader) {
    return reader.HasObjectOffset(reader.Read(0));
  }
};

TEST_F(BonePoseTest, ARootInTheWorldGoesFromZUpToYUp) {
  host::Node& hips = AddBone("Hips");
  Place(hips, Point3(1, 2, 3));
  ExpectVector(PoseAt(0, BonePoseReader(hips, true, true)).translation, 1, 3, -2);
}

TEST_F(BonePoseTest, ABoneIsRelativeToItsParent) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  Place(hips, Point3(10, 20, 30));
  Turn(hips, test::Turn(0, 0, 1, 90));
  Place(leg, Point3(1, 2, 3));
  // Within what is left of 30 in single precision.
  ExpectVector(PoseAt(0, BonePoseReader(leg, false, true)).translation, 3, 1, 2, 1e-5);
}

// Ry(-90) Rx(180), upright, is a root without a rotation in the file.
TEST_F(BonePoseTest, AnUprightRootIsNotRotatedInTheFile) {
  host::Node& hips = AddBone("Hips");
  Turn(hips, Quat(0.70710678F, 0.0F, 0.70710678F, 0.0F));
  ExpectAngles(Angles(PoseAt(0, BonePoseReader(hips, true, true))), 0, 0, 0);
}

TEST_F(BonePoseTest, ARootThatLiesInTheHostIsHalfATurnAndAQuarterTurnInTheFile) {
  ExpectAngles(Angles(PoseAt(0, BonePoseReader(AddBone("Hips"), true, true))), 180, 0, 90);
}

// The bone's X is the file's Y, its Y the file's Z, its Z the file's X.
TEST_F(BonePoseTest, RotationsOfABoneChangeTheirAxes) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  const BonePoseReader reader(leg, false, true);
  Turn(leg, test::Turn(1, 0, 0, 30));
  ExpectAngles(Angles(PoseAt(0, reader)), 0, 30, 0);
  Turn(leg, test::Turn(0, 1, 0, 30));
  ExpectAngles(Angles(PoseAt(0, reader)), 0, 0, 30);
  Turn(leg, test::Turn(0, 0, 1, 30));
  ExpectAngles(Angles(PoseAt(0, reader)), 30, 0, 0);
}

TEST_F(BonePoseTest, TheParentsOfARootCountOnlyInTheWorld) {
  host::Node& group = AddDummy("Group");
  host::Node& hips = AddBone("Hips", &group);
  Place(group, Point3(100, 0, 0));
  Enlarge(group, 2);
  Place(hips, Point3(1, 2, 3));
  const BonePose in_world = PoseAt(0, BonePoseReader(hips, true, true));
  ExpectVector(in_world.translation, 102, 6, -4);
  EXPECT_EQ(in_world.scale, 2.0);
  const BonePose relative = PoseAt(0, BonePoseReader(hips, true, false));
  ExpectVector(relative.translation, 1, 3, -2);
  EXPECT_EQ(relative.scale, 1.0);
  EXPECT_EQ(ParentScale(BonePoseReader(hips, true, true).Read(0)), 2.0);
}

TEST_F(BonePoseTest, TheSceneRootIsAParentThatDoesNothing) {
  host::Node& hips = AddBone("Hips");
  Place(hips, Point3(1, 2, 3));
  const BonePoseReader reader(hips, true, false);
  ExpectVector(PoseAt(0, reader).translation, 1, 3, -2);
  EXPECT_EQ(ParentScale(reader.Read(0)), 1.0);
  EXPECT_FALSE(HasObjectOffset(reader));
}

TEST_F(BonePoseTest, IsReadAtItsTime) {
  host::Node& hips = AddBone("Hips");
  hips.Transform()->Position().SetKey(0, Point3(0, 0, 0));
  hips.Transform()->Position().SetKey(160, Point3(0, 0, 8));
  const BonePoseReader reader(hips, true, true);
  ExpectVector(PoseAt(160, reader).translation, 0, 8, 0);
  ExpectVector(PoseAt(80, reader).translation, 0, 4, 0);
}

TEST_F(BonePoseTest, AnyDifferenceOfTheObjectsIsAnOffset) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  host::Node& foot = AddBone("Foot", &leg);
  Matrix3 offset;
  offset.SetRow(3, Point3(0, 0, 1e-6F));
  hips.SetObjectOffset(offset);
  EXPECT_TRUE(HasObjectOffset(BonePoseReader(hips, true, true)));
  EXPECT_TRUE(HasObjectOffset(BonePoseReader(leg, false, true)));
  EXPECT_FALSE(HasObjectOffset(BonePoseReader(foot, false, true)));
}

}  // namespace
}  // namespace orvane
