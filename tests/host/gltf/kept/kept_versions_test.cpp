#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "host/gltf/reader.h"
#include "tests/host/gltf/sample_scenes.h"
#include "tests/host/gltf/scene_description.h"
#include "tests/support/files.h"

// Scene files that earlier versions have written: they are read for good.

namespace test {
namespace {

struct KeptScene {
  std::string file;
  std::string sample;  // the scene that it was made from
};

class KeptVersions : public testing::TestWithParam<KeptScene> {};

TEST_P(KeptVersions, AreTheScenesThatWereWritten) {
  const std::string bytes = ReadFile(ORVANE_SOURCE_DIR "/tests/data/scenes/" + GetParam().file);
  host::Scene read;
  ASSERT_EQ(host::gltf::ReadScene(bytes, read), "");
  const auto& samples = SampleScenes();
  const auto sample = std::find_if(samples.begin(), samples.end(), [](const SampleScene& one) {
    return one.name == GetParam().sample;
  });
  ASSERT_NE(sample, samples.end());
  host::Scene written;
  sample->build(written);
  EXPECT_EQ(Description(read), Description(written));
}

INSTANTIATE_TEST_SUITE_P(All, KeptVersions,
                         testing::Values(KeptScene{"version-2-everything.glb", "everything"},
                                         KeptScene{"version-2-wide-times.gltf", "wide_times"},
                                         KeptScene{"version-3-recorded.glb", "recorded"}),
                         [](const auto& kept) { return kept.param.sample; });

}  // namespace
}  // namespace test
