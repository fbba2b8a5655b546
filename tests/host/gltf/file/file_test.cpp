#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

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

// Takes so many pieces and no more.
class Pieces final : public host::gltf::FileSink {
 public:
  explicit Pieces(std::size_t most) : most_(most) {}

  bool Take(std::string_view bytes) override {
    pieces.emplace_back(bytes);
    return pieces.size() < most_;
  }

  std::string Joined() const {
    std::string joined;
    for (const std::string& piece : pieces) joined += piece;
    return joined;
  }

  std::vector<std::string> pieces;

 private:
  std::size_t most_;
};

constexpr std::size_t kAnyNumber = 1000;

// Bones and keys of some hundred kilobytes.
void BuildManyBones(host::Scene& scene) {
  host::Node* last = nullptr;
  for (int i = 0; i < 500; ++i) {
    last = &AddBone(scene, last, "bone " + std::to_string(i));
    for (TimeValue tick = 0; tick < 10; ++tick) {
      last->Transform()->Position().SetKey(tick, {1.0F, static_cast<float>(i), 0.0F});
    }
  }
}

TEST(GltfPieces, AreTheFile) {
  host::Scene scene;
  BuildManyBones(scene);
  for (const Container container : {Container::kBinary, Container::kText}) {
    Pieces file(kAnyNumber);
    EXPECT_EQ(host::gltf::WriteScene(scene, {container, "name"}, file), "");
    EXPECT_GT(file.pieces.size(), 5U);
    EXPECT_TRUE(file.Joined() == Written(scene, {container, "name"}));
  }
}

TEST(GltfPieces, HoldTheSameInBothContainers) {
  host::Scene scene;
  BuildManyBones(scene);
  const Viewer binary(Written(scene));
  const Viewer text(Written(scene, {Container::kText, ""}));
  EXPECT_TRUE(text.File().buffers.at(0).data == binary.File().buffers.at(0).data);
}

TEST(GltfPieces, EndWithTheOneBehindWhichNoneIsWanted) {
  host::Scene scene;
  BuildManyBones(scene);
  Pieces file(2);
  EXPECT_EQ(host::gltf::WriteScene(scene, {}, file), "");
  ASSERT_EQ(file.pieces.size(), 2U);
  EXPECT_EQ(Written(scene).rfind(file.Joined(), 0), 0U);
}

TEST(GltfPieces, AreNoneOfASceneThatIsRefused) {
  host::Scene scene;
  BuildManyBones(scene);
  AddBone(scene, nullptr, "broken").SetUserPropertyFloat("p", INFINITY);
  Pieces file(kAnyNumber);
  EXPECT_EQ(host::gltf::WriteScene(scene, {}, file),
            "Node \"broken\" cannot be saved: its user property \"p\" is not finite.");
  EXPECT_TRUE(file.pieces.empty());
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
