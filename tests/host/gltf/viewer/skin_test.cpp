#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

#include "tests/host/gltf/expect.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

// The corners that follow the joint `bone`, in the order of the file.
std::vector<Vector3> CornersOf(const Viewer& viewer, const std::string& skinned,
                               const std::string& bone, const std::vector<Vector3>& corners) {
  std::vector<Vector3> followers;
  const std::vector<std::size_t> joints = viewer.JointNodes(viewer.NodeNamed(skinned));
  EXPECT_EQ(joints.size(), corners.size());
  for (std::size_t i = 0; i < corners.size(); ++i) {
    if (joints[i] == viewer.NodeNamed(bone)) followers.push_back(corners[i]);
  }
  return followers;
}

// The smallest and largest coordinate of points along one axis.
std::pair<double, double> Extent(const std::vector<Vector3>& points, std::size_t axis) {
  const auto [low, high] =
      std::minmax_element(points.begin(), points.end(),
                          [axis](const Vector3& a, const Vector3& b) { return a[axis] < b[axis]; });
  return {(*low)[axis], (*high)[axis]};
}

void ExpectExtent(const std::vector<Vector3>& points, std::size_t axis, double low, double high) {
  EXPECT_NEAR(Extent(points, axis).first, low, 1e-7) << "axis " << axis;
  EXPECT_NEAR(Extent(points, axis).second, high, 1e-7) << "axis " << axis;
}

// Expects that one of `corners` is at `place`.
void ExpectCorner(const std::vector<Vector3>& corners, const Vector3& place) {
  EXPECT_TRUE(std::any_of(corners.begin(), corners.end(), [&](const Vector3& corner) {
    return std::hypot(corner[0] - place[0], corner[1] - place[1], corner[2] - place[2]) <=
           kPlaceInMeters;
  }));
}

// What a scene of one bone of that size at the origin shows.
std::vector<Vector3> CornersOfBone(const BoneSize& size) {
  host::Scene scene;
  AddBone(scene, nullptr, "bone", size);
  const Viewer viewer(Written(scene));
  return viewer.Corners(viewer.NodeNamed("bone bones"));
}

TEST(GltfSkins, ABoneIsAnOctahedronOfItsSizeAlongX) {
  const std::vector<Vector3> corners = CornersOfBone({400.0F, 80.0F, 40.0F});
  EXPECT_THAT(corners, SizeIs(3 * 8));
  ExpectExtent(corners, 0, 0.0, 0.4);
  ExpectExtent(corners, 1, -0.02, 0.02);  // the height, along the host's Z
  ExpectExtent(corners, 2, -0.04, 0.04);  // the width, along the host's Y
}

TEST(GltfSkins, ABoneThatPointsBackwardsIsDrawnBackwards) {
  const std::vector<Vector3> corners = CornersOfBone({-400.0F, 80.0F, 40.0F});
  ExpectExtent(corners, 0, -0.4, 0.0);
  ExpectExtent(corners, 1, -0.02, 0.02);
  ExpectExtent(corners, 2, -0.04, 0.04);
}

TEST(GltfSkins, ABoneTooThinToSeeIsDrawnThicker) {
  const std::vector<Vector3> corners = CornersOfBone({400.0F, 0.0F, 1.0F});
  ExpectExtent(corners, 1, -0.004, 0.004);
  ExpectExtent(corners, 2, -0.004, 0.004);
}

TEST(GltfSkins, ABoneWithoutLengthIsASmallMark) {
  const std::vector<Vector3> corners = CornersOfBone({0.0F, 80.0F, 40.0F});
  for (std::size_t axis = 0; axis < 3; ++axis) ExpectExtent(corners, axis, -0.005, 0.005);
}

TEST(GltfSkins, EveryBoneIsAJointAndNothingElseIs) {
  host::Scene scene;
  host::Node& group = AddDummy(scene, nullptr, "group");
  host::Node& hips = AddBone(scene, &group, "hips");
  AddBone(scene, AddDummy(scene, &hips, "between").Parent(), "sibling");
  AddSphere(scene, &hips, "sphere", 1.0F);
  const Viewer viewer(Written(scene));
  ASSERT_THAT(viewer.File().skins, SizeIs(1));
  EXPECT_THAT(viewer.File().skins[0].joints,
              UnorderedElementsAre(viewer.NodeNamed("hips"), viewer.NodeNamed("sibling")));
}

TEST(GltfSkins, ASceneWithoutBonesHasNone) {
  host::Scene scene;
  AddDummy(scene, nullptr, "dummy");
  const Viewer viewer(Written(scene));
  EXPECT_THAT(viewer.File().skins, IsEmpty());
  EXPECT_THAT(viewer.File().meshes, IsEmpty());
}

TEST(GltfSkins, TheMeshHangsAtTheRootOfTheScene) {
  host::Scene scene;
  AddBone(scene, AddDummy(scene, nullptr, "group").Parent(), "bone");
  AddBone(scene, nullptr, "other");
  const Viewer viewer(Written(scene));
  const std::size_t skinned = viewer.NodeNamed("bone bones");
  EXPECT_EQ(viewer.Parents()[skinned], -1);
  EXPECT_THAT(viewer.File().scenes[0].nodes, testing::Contains(skinned));
  EXPECT_THAT(viewer.File().nodes[skinned].translation, IsEmpty());
  EXPECT_THAT(viewer.File().nodes[skinned].children, IsEmpty());
}

// A scene in which bones stand, turn and grow below each other.
class GltfSkinInMotion : public testing::Test {
 protected:
  GltfSkinInMotion() {
    group_.Transform()->Rotation().SetConstant(TurnAbout(0, 30.0));
    group_.Transform()->Scale().SetConstant({1.0F, 2.0F, 1.0F});
    upper_.Transform()->Position().SetConstant({100.0F, 200.0F, 300.0F});
    lower_.Transform()->Position().SetConstant({250.0F, 0.0F, 0.0F});
    for (int key = 0; key < 10; ++key) {
      upper_.Transform()->Rotation().SetKey(key * 160, TurnAbout(2, 20.0 * key));
      lower_.Transform()->Rotation().SetKey(key * 160, TurnAbout(1, -30.0 * key));
    }
    scene_.Animation().SetTime(480);
  }

  host::Scene scene_;
  host::Node& group_ = AddDummy(scene_, nullptr, "group");
  host::Node& upper_ = AddBone(scene_, &group_, "upper", {250.0F, 50.0F, 40.0F});
  host::Node& lower_ = AddBone(scene_, &upper_, "lower", {200.0F, 30.0F, 20.0F});
};

TEST_F(GltfSkinInMotion, JointsAreBoundAsTheyStandAtTheCurrentTime) {
  const Viewer viewer(Written(scene_));
  const tinygltf::Skin& skin = viewer.File().skins.at(0);
  const std::vector<double> inverses = viewer.Numbers(skin.inverseBindMatrices);
  ASSERT_EQ(inverses.size(), 16 * skin.joints.size());
  for (std::size_t joint = 0; joint < skin.joints.size(); ++joint) {
    Matrix4 inverse;
    std::copy_n(&inverses[16 * joint], 16, inverse.begin());
    const Matrix4 world = viewer.WorldAtRest(static_cast<std::size_t>(skin.joints[joint]));
    const Matrix4 product = Product(inverse, world);
    for (std::size_t i = 0; i < 16; ++i) EXPECT_NEAR(product[i], i % 5 == 0 ? 1.0 : 0.0, 2e-6);
  }
}

TEST_F(GltfSkinInMotion, ShapesStayOnTheirBonesAtAllTimes) {
  const Viewer viewer(Written(scene_));
  const std::size_t skinned = viewer.NodeNamed("group bones");
  for (int key = 0; key < 10; ++key) {
    const std::vector<Vector3> drawn = viewer.DrawnCorners(skinned, key * 160 / 4800.0);
    for (host::Node* bone : {&upper_, &lower_}) {
      const float length = bone == &upper_ ? 250.0F : 200.0F;
      const Matrix3 world = bone->WorldTransform(key * 160);
      const std::vector<Vector3> corners = CornersOf(viewer, "group bones", bone->Name(), drawn);
      ExpectCorner(corners, InViewer(world, {}, 1.0));
      ExpectCorner(corners, InViewer(world, {length, 0.0F, 0.0F}, 1.0));
    }
  }
}

TEST_F(GltfSkinInMotion, AnObjectBesideItsNodeIsDrawnBesideIt) {
  Matrix3 offset;
  offset.SetRow(3, {10.0F, 20.0F, 30.0F});
  lower_.SetObjectOffset(offset);
  const Viewer viewer(Written(scene_));
  const std::vector<Vector3> drawn =
      viewer.DrawnCorners(viewer.NodeNamed("group bones"), 320 / 4800.0);
  ExpectCorner(CornersOf(viewer, "group bones", "lower", drawn),
               InViewer(lower_.ObjectTransform(320), {}, 1.0));
}

TEST(GltfSkins, ABoneFlatAtTheCurrentTimeIsDrawnOnceItGrows) {
  host::Scene scene;
  host::Node& bone = AddBone(scene, nullptr, "bone", {400.0F, 80.0F, 40.0F});
  bone.Transform()->Scale().SetKey(0, {0.0F, 0.0F, 0.0F});
  bone.Transform()->Scale().SetKey(4800, {2.0F, 1.0F, 1.0F});
  bone.Transform()->Position().SetConstant({0.0F, 0.0F, 1000.0F});
  const Viewer viewer(Written(scene));
  const std::vector<Vector3> drawn = viewer.DrawnCorners(viewer.NodeNamed("bone bones"), 1.0);
  ExpectExtent(drawn, 0, 0.0, 0.8);
  ExpectExtent(drawn, 1, 0.98, 1.02);
}

TEST(GltfSkins, ABoneTooSmallToBeTurnedBackIsStillBound) {
  host::Scene scene;
  host::Node& bone = AddBone(scene, nullptr, "bone");
  bone.Transform()->Scale().SetConstant({1e-39F, 1e-39F, 1e-39F});
  const Viewer viewer(Written(scene));
  for (const double number : viewer.Numbers(viewer.File().skins[0].inverseBindMatrices)) {
    EXPECT_TRUE(std::isfinite(number));
  }
}

TEST(GltfSkins, EachTreeOfTheSceneHasItsOwn) {
  host::Scene scene;
  for (const char* name : {"first", "second"}) {
    AddBone(scene, &AddBone(scene, nullptr, name), std::string(name) + " child");
  }
  const Viewer viewer(Written(scene));
  ASSERT_THAT(viewer.File().skins, SizeIs(2));
  EXPECT_THAT(viewer.File().skins[0].joints, ElementsAre(0, 1));
  EXPECT_THAT(viewer.File().skins[1].joints, ElementsAre(2, 3));
  EXPECT_EQ(viewer.File().nodes[viewer.NodeNamed("first bones")].skin, 0);
  EXPECT_EQ(viewer.File().nodes[viewer.NodeNamed("second bones")].skin, 1);
}

TEST(GltfSkins, BonesAreInTheirWireColors) {
  host::Scene scene;
  host::Node& red = AddBone(scene, nullptr, "red");
  AddBone(scene, &red, "also red").SetWireColor(PackWireColor(255, 0, 0));
  AddBone(scene, &red, "gray").SetWireColor(PackWireColor(0, 128, 255));
  red.SetWireColor(PackWireColor(255, 0, 0));
  const Viewer viewer(Written(scene));
  ASSERT_THAT(viewer.File().materials, SizeIs(2));
  const auto color = [&](std::size_t material) {
    return viewer.File().materials[material].pbrMetallicRoughness.baseColorFactor;
  };
  EXPECT_THAT(color(0), ElementsAre(1.0, 0.0, 0.0, 1.0));
  EXPECT_THAT(color(1), ElementsAre(0.0, testing::DoubleNear(0.215861, 1e-6), 1.0, 1.0));

  const auto& parts = viewer.File().meshes.at(0).primitives;
  ASSERT_THAT(parts, SizeIs(2));
  EXPECT_EQ(viewer.Numbers(parts[0].attributes.at("POSITION")).size(), 2 * 72U);
  EXPECT_EQ(viewer.Numbers(parts[1].attributes.at("POSITION")).size(), 72U);
}

}  // namespace
}  // namespace test
