#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// The seconds of a recording, whatever the host's ticks can hold.

namespace test {
namespace {

using host::Rate;
using host::Recording;
using testing::ElementsAre;

struct PlayedRate {
  std::string name;
  Rate rate;
  int host_rate;  // frames per second, as an import sets it
};

class GltfTime : public testing::TestWithParam<PlayedRate> {};

TEST_P(GltfTime, OfEveryFrameIsThatOfTheRecording) {
  constexpr int kFrames = 4'920;
  host::Scene scene;
  scene.SetRecording(Recording{GetParam().rate, 1, "mm", "", false});
  scene.Animation().SetFrameRate(GetParam().host_rate);
  const TimeValue frame_ticks = 4800 / GetParam().host_rate;
  host::Node& marker = AddSphere(scene, nullptr, "marker", 1.0F);
  for (int frame = 0; frame < kFrames; ++frame) {
    marker.Transform()->Position().SetKey(800 + frame * frame_ticks, {});
  }
  const Viewer viewer(Written(scene));
  const std::vector<double> seconds = viewer.Seconds(0, "translation");
  ASSERT_EQ(seconds.size(), std::size_t{kFrames});
  const double rate = static_cast<double>(GetParam().rate.numerator) /
                      static_cast<double>(GetParam().rate.denominator);
  for (std::size_t frame = 0; frame < seconds.size(); ++frame) {
    const auto expected = static_cast<float>(static_cast<double>(frame) / rate);
    const float step = std::nextafter(expected, 1e9F) - expected;
    ASSERT_NEAR(seconds[frame], expected, step) << frame;
  }
}

INSTANTIATE_TEST_SUITE_P(
    At, GltfTime,
    testing::Values(PlayedRate{"25", {25, 1}, 25}, PlayedRate{"59_94", {2997, 50}, 59},
                    PlayedRate{"60_in_50", {60, 1}, 50}, PlayedRate{"250", {250, 1}, 250},
                    PlayedRate{"1000", {1000, 1}, 1000}, PlayedRate{"of_a_minute", {1, 60}, 1}),
    [](const auto& played) { return played.param.name; });

TEST(GltfTimes, AreTheHostsWithoutARateOfTheRecording) {
  host::Scene scene;
  scene.SetRecording(Recording{});
  scene.Animation().SetFrameRate(250);
  host::Node& marker = AddSphere(scene, nullptr, "marker", 1.0F);
  marker.Transform()->Position().SetKey(0, {});
  marker.Transform()->Position().SetKey(2400, {});
  EXPECT_THAT(Viewer(Written(scene)).Seconds(0, "translation"), ElementsAre(0.0, 0.5));
}

TEST(GltfTimes, AreFiniteAndRiseAtAnyRate) {
  for (const Rate& rate : {Rate{1, host::kLargestInRate}, Rate{host::kLargestInRate, 1}}) {
    host::Scene scene;
    scene.SetRecording(Recording{rate, 1, "mm", "", false});
    scene.Animation().SetFrameRate(4800);
    host::Node& marker = AddSphere(scene, nullptr, "marker", 1.0F);
    for (const TimeValue tick :
         {std::numeric_limits<TimeValue>::min(), 0, std::numeric_limits<TimeValue>::max()}) {
      marker.Transform()->Position().SetKey(tick, {});
    }
    const std::vector<double> seconds = Viewer(Written(scene)).Seconds(0, "translation");
    ASSERT_EQ(seconds.size(), 3U);
    EXPECT_LT(seconds[0], seconds[1]);
    EXPECT_LT(seconds[1], seconds[2]);
    EXPECT_TRUE(std::isfinite(seconds[2]));
  }
}

TEST(GltfRecording, IsToldToOtherProgramsWithTheSceneAndItsAnimation) {
  host::Scene scene;
  scene.SetRecording(Recording{Rate{2997, 50}, 101, "mm", "walk \xFF.trc", true});
  AddSphere(scene, nullptr, "marker", 1.0F).Transform()->Position().SetKey(0, {});
  const tinygltf::Model model = Viewer(Written(scene)).File();
  for (const tinygltf::Value& extras : {model.scenes.at(0).extras, model.animations.at(0).extras}) {
    EXPECT_EQ(extras.Get("frameRate").Get("numerator").GetNumberAsInt(), 2997);
    EXPECT_EQ(extras.Get("frameRate").Get("denominator").GetNumberAsInt(), 50);
    EXPECT_EQ(extras.Get("firstFrame").GetNumberAsInt(), 101);
    EXPECT_EQ(extras.Get("unit").Get<std::string>(), "mm");
    EXPECT_EQ(extras.Get("source").Get<std::string>(), "walk \xEF\xBF\xBD.trc");
    EXPECT_TRUE(extras.Get("turnedFromZUp").Get<bool>());
  }
}

TEST(GltfRecording, HasNoRateWhenViewersGoByTheHostsTime) {
  host::Scene scene;
  scene.SetRecording(Recording{std::nullopt, 1, "mm", "walk.trc", false});
  const tinygltf::Model model = Viewer(Written(scene)).File();
  EXPECT_FALSE(model.scenes.at(0).extras.Has("frameRate"));
  EXPECT_TRUE(model.scenes.at(0).extras.Has("source"));
}

TEST(GltfRecording, ThatIsNotKnownIsNotTold) {
  host::Scene scene;
  AddSphere(scene, nullptr, "marker", 1.0F).Transform()->Position().SetKey(0, {});
  const tinygltf::Model model = Viewer(Written(scene)).File();
  EXPECT_FALSE(model.scenes.at(0).extras.IsObject());
  EXPECT_FALSE(model.animations.at(0).extras.IsObject());
}

}  // namespace
}  // namespace test
