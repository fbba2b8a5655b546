#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "tests/host/gltf/sample_scenes.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

using host::gltf::Container;

std::uint32_t WordAt(const std::string& bytes, std::size_t offset) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes.data() + offset, sizeof word);
  return word;
}

class GltfFile : public testing::TestWithParam<SampleScene> {
 protected:
  GltfFile() { GetParam().build(scene_); }

  host::Scene scene_;
};

TEST_P(GltfFile, IsTheSameForTheSameScene) {
  host::Scene again;
  GetParam().build(again);
  for (const Container container : {Container::kBinary, Container::kText}) {
    EXPECT_EQ(Written(scene_, {container, "name"}), Written(again, {container, "name"}));
  }
}

TEST_P(GltfFile, HoldsTheSameInBothContainers) {
  const Viewer binary(Written(scene_, {Container::kBinary, "name"}));
  Viewer text(Written(scene_, {Container::kText, "name"}));
  tinygltf::Model model = text.File();
  if (!model.buffers.empty()) model.buffers[0].uri.clear();
  EXPECT_TRUE(model == binary.File());
}

TEST_P(GltfFile, BinaryTellsItsOwnLength) {
  const std::string bytes = Written(scene_);
  EXPECT_EQ(bytes.substr(0, 4), "glTF");
  EXPECT_EQ(WordAt(bytes, 4), 2U);
  EXPECT_EQ(WordAt(bytes, 8), bytes.size());
}

TEST_P(GltfFile, TextNeedsNoOtherFile) {
  Viewer viewer(Written(scene_, {Container::kText, ""}));
  for (const tinygltf::Buffer& buffer : viewer.File().buffers) {
    EXPECT_EQ(buffer.uri.rfind("data:application/octet-stream;base64,", 0), 0U);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, GltfFile, testing::ValuesIn(SampleScenes()),
                         [](const auto& sample) { return sample.param.name; });

}  // namespace
}  // namespace test
