#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "host/gltf/file/key_counts.h"
#include "tests/host/gltf/sample_scenes.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// How large a file may be, and when that is found out.

namespace test {
namespace {

using host::gltf::Container;
using host::gltf::LeastSize;
using host::gltf::WriteOptions;

constexpr char kTooLarge[] = "The scene cannot be saved: glTF holds no more than 4 GiB.";

WriteOptions Within(std::size_t bytes, bool plain = false) {
  return {Container::kBinary, "", plain, static_cast<std::uint32_t>(bytes)};
}

std::string Refusal(const host::Scene& scene, const WriteOptions& options) {
  return host::gltf::WriteScene(scene, options).refusal;
}

class GltfRoom : public testing::TestWithParam<SampleScene> {};

TEST_P(GltfRoom, IsEnoughForWhatFitsAndNotForAByteMore) {
  host::Scene scene;
  GetParam().build(scene);
  for (const bool plain : {false, true}) {
    const std::string bytes = Written(scene, {Container::kBinary, "", plain});
    EXPECT_TRUE(Written(scene, Within(bytes.size(), plain)) == bytes);
    EXPECT_EQ(Refusal(scene, Within(bytes.size() - 1, plain)), kTooLarge);
  }
}

INSTANTIATE_TEST_SUITE_P(For, GltfRoom, testing::ValuesIn(SampleScenes()),
                         [](const auto& sample) { return sample.param.name; });

// A marker and a bone, ten seconds each.
void BuildTake(host::Scene& scene) {
  host::TransformController& marker = *AddSphere(scene, nullptr, "marker", 1.0F).Transform();
  host::TransformController& bone = *AddBone(scene, nullptr, "bone").Transform();
  for (TimeValue tick = 0; tick < 48'000; tick += 20) {
    marker.Position().SetKey(tick, {1.0F, 0.0F, 0.0F});
    bone.Position().SetKey(tick, {1.0F, 0.0F, 0.0F});
    bone.Rotation().SetKey(tick, {});
  }
}

TEST(GltfRoomForKeys, IsLookedForBeforeAnyWork) {
  host::Scene scene;
  BuildTake(scene);
  for (const bool plain : {false, true}) {
    const std::size_t size = Written(scene, {Container::kBinary, "", plain}).size();
    host::Scene broken;
    BuildTake(broken);
    AddSphere(broken, nullptr, "broken", std::numeric_limits<float>::infinity());
    EXPECT_EQ(Refusal(broken, Within(size * 2, plain)),
              "Node \"broken\" cannot be saved: its shape at tick 0 is not finite.");
    EXPECT_EQ(Refusal(broken, Within(size * 3 / 4, plain)), kTooLarge);
  }
}

TEST(GltfRoomForKeys, IsCountedByWhatTheyHold) {
  EXPECT_EQ(LeastSize({}, {}), 0U);
  EXPECT_EQ(LeastSize({1, 0, 0}, {}), 12U);
  EXPECT_EQ(LeastSize({0, 1, 0}, {}), 16U);
  EXPECT_EQ(LeastSize({}, {1, 0, 0}), 12U);
  EXPECT_EQ(LeastSize({}, {0, 1, 1}), 16U + 24U);
  EXPECT_EQ(LeastSize({200'000'000, 0, 0}, {200'000'000, 0, 0}), 4'800'000'000U);
}

}  // namespace
}  // namespace test
