#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/gltf/expect.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(GltfNodes, ASceneWithoutNodesHasASceneWithoutNodes) {
  const Viewer viewer(Written(host::Scene()));
  EXPECT_THAT(viewer.File().nodes, IsEmpty());
  EXPECT_EQ(viewer.File().scenes.size(), 1U);
  EXPECT_EQ(viewer.File().defaultScene, 0);
}

TEST(GltfNodes, KeepNamesTreeAndOrder) {
  host::Scene scene;
  host::Node& group = AddDummy(scene, nullptr, "group");
  AddDummy(scene, nullptr, "other");
  host::Node& a = AddDummy(scene, &group, "a");
  AddDummy(scene, &group, "b");
  AddDummy(scene, &a, "a1");
  AddDummy(scene, &a, "a2");
  const Viewer viewer(Written(scene));

  std::vector<std::string> names;
  for (const tinygltf::Node& node : viewer.File().nodes) names.push_back(node.name);
  EXPECT_THAT(names, ElementsAre("group", "a", "a1", "a2", "b", "other"));
  EXPECT_THAT(viewer.Parents(), ElementsAre(-1, 0, 1, 1, 0, -1));
  EXPECT_THAT(viewer.File().nodes[0].children, ElementsAre(1, 4));
  EXPECT_THAT(viewer.File().scenes[0].nodes, ElementsAre(0, 5));
}

TEST(GltfNodes, OfOneNameStayApart) {
  host::Scene scene;
  AddDummy(scene, AddDummy(scene, nullptr, "same").Parent(), "same");
  EXPECT_EQ(Viewer(Written(scene)).File().nodes.size(), 2U);
}

TEST(GltfNodes, StandWithYUpInMeters) {
  host::Scene scene;
  AddDummy(scene, nullptr, "node").Transform()->Position().SetConstant({1000.0F, 2000.0F, 3000.0F});
  const Viewer viewer(Written(scene));
  EXPECT_THAT(viewer.File().nodes[0].translation, ElementsAre(1.0, 3.0, -2.0));
}

TEST(GltfNodes, ConvertEverySystemUnit) {
  const struct {
    double millimeters;
    double meters_of_three_units;
  } cases[] = {{1.0, 0.003}, {10.0, 0.03}, {1000.0, 3.0}, {25.4, 0.0762}, {304.8, 0.9144}};
  for (const auto& [millimeters, meters] : cases) {
    host::Scene scene;
    scene.SetMillimetersPerUnit(millimeters);
    AddDummy(scene, nullptr, "node").Transform()->Position().SetConstant({3.0F, 0.0F, 0.0F});
    EXPECT_NEAR(Viewer(Written(scene)).File().nodes[0].translation[0], meters, 1e-12);
  }
}

TEST(GltfNodes, TurnInTheTextbookSenseAboutTheTurnedAxes) {
  const double half = std::sqrt(0.5);
  const struct {
    int axis;
    std::vector<double> rotation;
  } cases[] = {{0, {half, 0, 0, half}}, {1, {0, 0, -half, half}}, {2, {0, half, 0, half}}};
  for (const auto& [axis, rotation] : cases) {
    host::Scene scene;
    AddDummy(scene, nullptr, "node").Transform()->Rotation().SetConstant(TurnAbout(axis, 90.0));
    const Viewer viewer(Written(scene));
    EXPECT_THAT(viewer.File().nodes[0].rotation,
                testing::Pointwise(testing::DoubleNear(1e-7), rotation));
  }
}

TEST(GltfNodes, ScaleAlongTheTurnedAxes) {
  host::Scene scene;
  AddDummy(scene, nullptr, "node").Transform()->Scale().SetConstant({2.0F, 3.0F, -4.0F});
  EXPECT_THAT(Viewer(Written(scene)).File().nodes[0].scale, ElementsAre(2.0, -4.0, 3.0));
}

TEST(GltfNodes, QuaternionsHaveUnitLengthWhateverTheSceneHolds) {
  for (const Quat& stored :
       {Quat(0, 0, 0, 0), Quat(3, -4, 12, 0), Quat(1e-30F, 0, 0, 1e-30F), Quat(0, 0, 1e30F, 0)}) {
    host::Scene scene;
    AddDummy(scene, nullptr, "node").Transform()->Rotation().SetConstant(stored);
    const std::vector<double> q = Viewer(Written(scene)).File().nodes[0].rotation;
    EXPECT_NEAR(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3], 1.0, 1e-7);
  }
}

TEST(GltfNodes, StandAsAtTheCurrentTime) {
  host::Scene scene;
  host::Node& node = AddDummy(scene, nullptr, "node");
  node.Transform()->Position().SetKey(0, {0.0F, 0.0F, 0.0F});
  node.Transform()->Position().SetKey(4800, {1000.0F, 0.0F, 0.0F});
  scene.Animation().SetTime(1200);
  EXPECT_THAT(Viewer(Written(scene)).File().nodes[0].translation, ElementsAre(0.25, 0.0, 0.0));
}

TEST(GltfNodes, BelowScaledAndTurnedParentsStandWhereTheHostHasThem) {
  host::Scene scene;
  scene.SetMillimetersPerUnit(10.0);
  host::Node& top = AddDummy(scene, nullptr, "top");
  top.Transform()->Scale().SetConstant({2.0F, 0.5F, -3.0F});
  top.Transform()->Rotation().SetConstant(TurnAbout(0, 25.0));
  host::Node& middle = AddBone(scene, &top, "middle");
  middle.Transform()->Rotation().SetConstant(TurnAbout(2, 50.0));
  middle.Transform()->Position().SetConstant({10.0F, 20.0F, 30.0F});
  host::Node& leaf = AddBone(scene, &middle, "leaf");
  leaf.Transform()->Rotation().SetConstant(TurnAbout(1, -70.0));
  leaf.Transform()->Position().SetConstant({4.0F, -5.0F, 6.0F});

  const Viewer viewer(Written(scene));
  for (host::Node* node : {&top, &middle, &leaf}) {
    ExpectSameTransform(viewer.WorldAtRest(viewer.NodeNamed(node->Name())), node->WorldTransform(0),
                        10.0, 1e-5);
  }
}

}  // namespace
}  // namespace test
