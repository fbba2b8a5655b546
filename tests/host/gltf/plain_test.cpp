#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "host/gltf/reader.h"
#include "tests/host/gltf/sample_scenes.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// Files for viewers alone.

namespace test {
namespace {

using host::gltf::Container;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

std::string Plain(const host::Scene& scene, Container container = Container::kBinary) {
  return Written(scene, {container, "name", true});
}

class GltfPlainSample : public testing::TestWithParam<SampleScene> {};

TEST_P(GltfPlainSample, ShowsTheSameAndKeepsNothing) {
  host::Scene scene;
  GetParam().build(scene);
  const Viewer whole(Written(scene, {Container::kBinary, "name"}));
  for (const Container container : {Container::kBinary, Container::kText}) {
    const Viewer plain(Plain(scene, container));
    EXPECT_THAT(plain.File().extensionsUsed, IsEmpty());
    EXPECT_THAT(plain.File().extensions, IsEmpty());
    EXPECT_EQ(plain.File().nodes, whole.File().nodes);
    EXPECT_EQ(plain.File().meshes, whole.File().meshes);
    EXPECT_EQ(plain.File().animations, whole.File().animations);
    EXPECT_EQ(plain.File().skins, whole.File().skins);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, GltfPlainSample, testing::ValuesIn(SampleScenes()),
                         [](const auto& sample) { return sample.param.name; });

TEST(GltfPlain, SaysWhatWasLeftOut) {
  host::Scene scene;
  AddBone(scene, nullptr, "bone");
  const Viewer plain(Plain(scene));
  const tinygltf::Value left_out = plain.File().asset.extras.Get("leftOut");
  ASSERT_EQ(left_out.ArrayLen(), 1U);
  EXPECT_EQ(left_out.Get(0).Get<std::string>(), "ORVANE_scene");
}

TEST(GltfPlain, IsRefusedByTheReaderWithTheReason) {
  for (const Container container : {Container::kBinary, Container::kText}) {
    host::Scene scene;
    AddBone(scene, nullptr, "bone");
    host::Scene again;
    EXPECT_EQ(host::gltf::ReadScene(Plain(scene, container), again),
              "The file was written with --plain: it shows a scene to viewers and keeps none to go "
              "on with. Make it again without --plain.");
  }
}

TEST(GltfPlain, IsNotWhatOtherMakersExtrasAreTakenFor) {
  for (const char* extras : {"\"leftOut\"", "[]", "{}", "null", "3"}) {
    host::Scene scene;
    EXPECT_EQ(host::gltf::ReadScene(
                  std::string(R"({"asset":{"version":"2.0","extras":)") + extras + "}}", scene),
              "The file was not saved by this program, or another has saved it since: the "
              "extension ORVANE_scene is missing.")
        << extras;
  }
}

}  // namespace
}  // namespace test
