#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/host/gltf/expect.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

using testing::SizeIs;

double Length(const Vector3& vector) {
  return std::sqrt(vector[0] * vector[0] + vector[1] * vector[1] + vector[2] * vector[2]);
}

TEST(GltfObjects, ADummyIsNotDrawn) {
  host::Scene scene;
  AddDummy(scene, nullptr, "dummy");
  EXPECT_EQ(Viewer(Written(scene)).File().nodes[0].mesh, -1);
}

TEST(GltfObjects, ASphereIsABallOfItsRadius) {
  for (const float radius : {2.0F, -2.0F}) {
    host::Scene scene;
    scene.SetMillimetersPerUnit(10.0);
    AddSphere(scene, nullptr, "sphere", radius);
    const Viewer viewer(Written(scene));
    EXPECT_THAT(viewer.Triangles(0), SizeIs(3 * 320));
    for (const Vector3& corner : viewer.Corners(0)) EXPECT_NEAR(Length(corner), 0.02, 1e-7);
  }
}

TEST(GltfObjects, APointIsAMarkOfOneUnitToEachSideTimesItsScale) {
  host::Scene scene;
  scene.SetMillimetersPerUnit(10.0);
  AddPoint(scene, nullptr, "point").Transform()->Scale().SetConstant({3.0F, 3.0F, 3.0F});
  const Viewer viewer(Written(scene));
  EXPECT_THAT(viewer.Triangles(0), SizeIs(3 * 8));
  for (const Vector3& corner : viewer.DrawnCorners(0, 0.0)) {
    EXPECT_NEAR(Length(corner), 0.03, 1e-7);
  }
}

TEST(GltfObjects, OfOneLookShareAMesh) {
  host::Scene scene;
  for (const char* name : {"a", "b", "c"}) AddSphere(scene, nullptr, name, 5.0F);
  AddSphere(scene, nullptr, "larger", 6.0F);
  AddSphere(scene, nullptr, "red", 5.0F).SetWireColor(PackWireColor(255, 0, 0));
  AddPoint(scene, nullptr, "point");
  AddPoint(scene, nullptr, "other point");
  const Viewer viewer(Written(scene));
  EXPECT_THAT(viewer.File().meshes, SizeIs(4));
  const auto mesh = [&](const char* name) {
    return viewer.File().nodes[viewer.NodeNamed(name)].mesh;
  };
  EXPECT_EQ(mesh("a"), mesh("c"));
  EXPECT_NE(mesh("a"), mesh("larger"));
  EXPECT_NE(mesh("a"), mesh("red"));
  EXPECT_EQ(mesh("point"), mesh("other point"));
}

TEST(GltfObjects, BesideTheirNodesAreDrawnBesideThem) {
  host::Scene scene;
  AddSphere(scene, nullptr, "plain", 1.0F);
  host::Node& node = AddSphere(scene, nullptr, "beside", 1.0F);
  Matrix3 offset;
  offset.SetRow(3, {0.0F, 0.0F, 1000.0F});
  node.SetObjectOffset(offset);
  const Viewer viewer(Written(scene));
  for (const Vector3& corner : viewer.DrawnCorners(viewer.NodeNamed("beside"), 0.0)) {
    EXPECT_NEAR(corner[1], 1.0, 0.0011);
  }
  for (const Vector3& corner : viewer.DrawnCorners(viewer.NodeNamed("plain"), 0.0)) {
    EXPECT_NEAR(corner[1], 0.0, 0.0011);
  }
}

}  // namespace
}  // namespace test
