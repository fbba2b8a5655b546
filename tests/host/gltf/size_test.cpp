#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/gltf/reader.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

using testing::SizeIs;

// Large scenes. A writer that took time out of proportion would run into the tests' time limit.

TEST(GltfSize, AChainOfAHundredThousandNodesIsWritten) {
  host::Scene scene;
  host::Node* last = nullptr;
  for (int i = 0; i < 100'000; ++i) {
    last = &AddBone(scene, last, "n");
    last->Transform()->Position().SetKey(0, {1.0F, 0.0F, 0.0F});
  }
  const Viewer viewer(Written(scene));
  EXPECT_THAT(viewer.File().nodes, SizeIs(100'002));
  ASSERT_THAT(viewer.File().skins, SizeIs(2));
  EXPECT_THAT(viewer.File().skins[0].joints, SizeIs(60'000));
  EXPECT_THAT(viewer.File().skins[1].joints, SizeIs(40'000));
  EXPECT_THAT(viewer.File().animations.at(0).channels, SizeIs(100'000));
}

TEST(GltfSize, AFanOfAHundredThousandNodesIsWritten) {
  host::Scene scene;
  host::Node& group = AddDummy(scene, nullptr, "group");
  for (int i = 0; i < 100'000; ++i) AddSphere(scene, &group, "n", 1.0F);
  const Viewer viewer(Written(scene));
  EXPECT_THAT(viewer.File().nodes[0].children, SizeIs(100'000));
  EXPECT_THAT(viewer.File().meshes, SizeIs(1));
}

TEST(GltfSize, ChainsAndFansOfAHundredThousandNodesAreRead) {
  for (const bool chain : {true, false}) {
    host::Scene scene;
    host::Node* last = nullptr;
    for (int i = 0; i < 100'000; ++i) {
      host::Node& node = AddDummy(scene, last, "n");
      if (chain || last == nullptr) last = &node;
    }
    host::Scene again;
    EXPECT_EQ(host::gltf::ReadScene(Written(scene), again), "");
    EXPECT_EQ(again.NodeCount(), 100'000U);
  }
}

}  // namespace
}  // namespace test
