#include "host/gltf/reader.h"

#include <gtest/gtest.h>

#include "tests/host/gltf/sample_scenes.h"
#include "tests/host/gltf/scene_description.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

using host::gltf::Container;
using host::gltf::ReadScene;

class GltfReader : public testing::TestWithParam<SampleScene> {};

TEST_P(GltfReader, GivesTheSameSceneAndTheSameBytes) {
  host::Scene scene;
  GetParam().build(scene);
  for (const Container container : {Container::kBinary, Container::kText}) {
    const std::string bytes = Written(scene, {container, "name"});
    host::Scene again;
    ASSERT_EQ(ReadScene(bytes, again), "");
    EXPECT_EQ(Description(again), Description(scene));
    EXPECT_TRUE(Written(again, {container, "name"}) == bytes);
    EXPECT_EQ(again.LooseInstances(), 0U);
    EXPECT_EQ(again.Misuse().Count(), 0U);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, GltfReader, testing::ValuesIn(SampleScenes()),
                         [](const auto& sample) { return sample.param.name; });

TEST(GltfReaderOfKeys, KeepsTicksThatViewersCannotTellApart) {
  host::Scene scene;
  AddBone(scene, nullptr, "late");
  host::PositionController& position = scene.FindByName("late")->Transform()->Position();
  const std::vector<TimeValue> ticks = {-2'147'483'647 - 1, -1, 30'000'000, 30'000'001,
                                        2'147'483'647};
  for (const TimeValue tick : ticks) position.SetKey(tick, {static_cast<float>(tick), 0.0F, -0.0F});
  host::Scene again;
  ASSERT_EQ(ReadScene(Written(scene), again), "");
  const host::PositionController& read = again.FindByName("late")->Transform()->Position();
  ASSERT_EQ(read.KeyCount(), ticks.size());
  for (std::size_t key = 0; key < ticks.size(); ++key) {
    EXPECT_EQ(read.KeyTick(key), ticks[key]);
    EXPECT_EQ(read.KeyValue(key), position.KeyValue(key));
  }
}

// The way that an Euler rotation takes between two keys depends on the order in which they were
// made.
TEST(GltfReaderOfKeys, KeepsTheWayBetweenEulerKeys) {
  host::Scene scene;
  host::RotationController& rotation = AddBone(scene, nullptr, "turning").Transform()->Rotation();
  rotation.SetKey(480, TurnAbout(1, 170.0));
  rotation.SetKey(0, TurnAbout(0, 120.0));
  rotation.SetKey(240, TurnAbout(1, 80.0));
  host::Scene again;
  ASSERT_EQ(ReadScene(Written(scene), again), "");
  const host::RotationController& read = again.FindByName("turning")->Transform()->Rotation();
  for (TimeValue tick = 0; tick <= 480; ++tick) {
    EXPECT_EQ(read.ValueAt(tick), rotation.ValueAt(tick)) << tick;
  }
}

}  // namespace
}  // namespace test
