#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "host/gltf/reader.h"
#include "tests/host/gltf/expect.h"
#include "tests/host/gltf/scene_description.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// What viewers are shown of samples that are missing.

namespace test {
namespace {

using host::Gap;
using host::GapManner;
using host::Measured;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;

constexpr TimeValue kFrame = 480;  // a tenth of a second

// A marker with ten samples, at (n + 1, 0, 0) in metres in frame n, and where it is missing with a
// key at the origin, as importers make them.
class GltfGaps : public testing::Test {
 protected:
  GltfGaps() {
    scene_.SetMillimetersPerUnit(1000.0);
    scene_.Animation().SetFrameRate(10);
  }

  // Gaps in frames.
  void Measure(const std::vector<Gap>& frames, GapManner manner = GapManner::kHide,
               bool made_by_import = true) {
    Measured measured{made_by_import, manner, {}};
    for (const Gap& gap : frames) measured.gaps.push_back({gap.first * kFrame, gap.last * kFrame});
    for (int frame = 0; frame < 10; ++frame) {
      const bool missing = measured.IsMissing(frame * kFrame);
      const float place = missing ? 0.0F : static_cast<float>(frame + 1);
      marker_.Transform()->Position().SetKey(frame * kFrame, {place, 0.0F, 0.0F});
    }
    marker_.SetMeasurement(measured);
  }

  Viewer View() const { return Viewer(Written(scene_)); }

  // Where the marker is along X at the samples.
  static std::vector<double> Places(const Viewer& viewer) {
    const std::vector<double> values = viewer.Values(0, "translation");
    std::vector<double> places;
    for (std::size_t i = 0; i < values.size(); i += 3) places.push_back(values[i]);
    return places;
  }

  host::Scene scene_;
  host::Node& marker_ = AddSphere(scene_, nullptr, "marker", 0.01F);
};

TEST_F(GltfGaps, AreHiddenByAScaleThatIsKeyedWhereItChanges) {
  Measure({{2, 4}, {7, 7}});
  const Viewer viewer = View();
  const tinygltf::AnimationChannel* channel = viewer.ChannelOf(0, "scale");
  ASSERT_NE(channel, nullptr);
  const auto& samplers = viewer.File().animations[0].samplers;
  EXPECT_EQ(samplers.at(static_cast<std::size_t>(channel->sampler)).interpolation, "STEP");
  EXPECT_THAT(viewer.Seconds(0, "scale"), Pointwise(DoubleNear(1e-7), {0.0, 0.2, 0.5, 0.7, 0.8}));
  EXPECT_THAT(viewer.Values(0, "scale"), ElementsAre(1, 1, 1, 0, 0, 0, 1, 1, 1, 0, 0, 0, 1, 1, 1));
}

TEST_F(GltfGaps, AreRestsAtTheLastMeasuredPlace) {
  Measure({{2, 4}, {7, 7}});
  EXPECT_THAT(Places(View()), ElementsAre(1, 2, 2, 2, 2, 6, 7, 7, 9, 10));
}

TEST_F(GltfGaps, AtTheBeginningAndTheEndAreHiddenToo) {
  Measure({{0, 2}, {8, 9}});
  const Viewer viewer = View();
  EXPECT_THAT(Places(viewer), ElementsAre(4, 4, 4, 4, 5, 6, 7, 8, 8, 8));
  EXPECT_THAT(viewer.Values(0, "scale"), ElementsAre(0, 0, 0, 1, 1, 1, 0, 0, 0));
  for (const double second : {0.0, 0.25, 0.85, 5.0}) {
    ExpectNear(Apply(viewer.WorldAt(0, second), {1, 1, 1}), Origin(viewer.WorldAt(0, second)), 0);
  }
  for (const double second : {0.3, 0.45, 0.75}) {
    ExpectNear(Apply(viewer.WorldAt(0, second), {1, 0, 0}),
               {Origin(viewer.WorldAt(0, second))[0] + 1.0, 0, 0}, 1e-6);
  }
}

TEST_F(GltfGaps, NeverTakeTheMarkerAnywhereBetweenTwoMeasuredPlaces) {
  Measure({{2, 4}});
  const Viewer viewer = View();
  for (double second = 0.1; second < 0.2; second += 0.01) {
    EXPECT_NEAR(Origin(viewer.WorldAt(0, second))[0], 2.0, 1e-6) << second;
  }
}

TEST_F(GltfGaps, ThatAreNoneHideNothing) {
  Measure({});
  EXPECT_EQ(View().ChannelOf(0, "scale"), nullptr);
}

TEST_F(GltfGaps, OfAScaledMarkerBringItsOwnScaleBack) {
  marker_.Transform()->Scale().SetConstant({2.0F, 3.0F, 4.0F});
  Measure({{0, 4}});
  EXPECT_THAT(View().Values(0, "scale"), ElementsAre(0, 0, 0, 2, 4, 3));
}

TEST_F(GltfGaps, OfAMarkerThatWasNeverMeasuredHideItThroughout) {
  for (const GapManner manner : {GapManner::kHide, GapManner::kHold}) {
    Measure({{0, 9}}, manner);
    const Viewer viewer = View();
    EXPECT_THAT(viewer.File().nodes[0].scale, ElementsAre(0, 0, 0));
    EXPECT_THAT(viewer.File().animations, IsEmpty());
  }
}

TEST_F(GltfGaps, OfAMarkerWithoutKeysHideIt) {
  marker_.SetMeasurement(Measured{true, GapManner::kHide, {{0, 9 * kFrame}}});
  const Viewer viewer = View();
  EXPECT_THAT(viewer.File().nodes[0].scale, ElementsAre(0, 0, 0));
  EXPECT_THAT(viewer.File().animations, IsEmpty());
}

TEST_F(GltfGaps, HoldTheLastPlaceWhenToldTo) {
  Measure({{0, 0}, {2, 4}}, GapManner::kHold);
  const Viewer viewer = View();
  EXPECT_THAT(Places(viewer), ElementsAre(2, 2, 2, 2, 2, 6, 7, 8, 9, 10));
  EXPECT_EQ(viewer.ChannelOf(0, "scale"), nullptr);
}

TEST_F(GltfGaps, StayAtTheOriginWhenToldTo) {
  for (const std::vector<Gap>& gaps : {std::vector<Gap>{{2, 4}}, std::vector<Gap>{{0, 9}}}) {
    Measure(gaps, GapManner::kOrigin);
    const Viewer viewer = View();
    EXPECT_EQ(Places(viewer)[3], 0.0);
    EXPECT_EQ(viewer.ChannelOf(0, "scale"), nullptr);
    EXPECT_THAT(viewer.File().nodes[0].scale, ElementsAre(1, 1, 1));
  }
}

TEST_F(GltfGaps, OfANodeThatTheImportDidNotMakeHoldItsPlace) {
  Measure({{2, 4}}, GapManner::kHide, false);
  const Viewer viewer = View();
  EXPECT_THAT(Places(viewer), ElementsAre(1, 2, 2, 2, 2, 6, 7, 8, 9, 10));
  EXPECT_EQ(viewer.ChannelOf(0, "scale"), nullptr);
}

TEST_F(GltfGaps, OfANodeWithChildrenHoldItsPlace) {
  AddDummy(scene_, &marker_, "child");
  Measure({{2, 4}});
  const Viewer viewer = View();
  EXPECT_THAT(Places(viewer), ElementsAre(1, 2, 2, 2, 2, 6, 7, 8, 9, 10));
  EXPECT_EQ(viewer.ChannelOf(0, "scale"), nullptr);
}

TEST_F(GltfGaps, OfANodeWithScaleKeysHoldItsPlaceAndLeaveItsScale) {
  marker_.Transform()->Scale().SetKey(0, {3.0F, 3.0F, 3.0F});
  Measure({{2, 4}});
  const Viewer viewer = View();
  EXPECT_THAT(Places(viewer), ElementsAre(1, 2, 2, 2, 2, 6, 7, 8, 9, 10));
  EXPECT_THAT(viewer.Values(0, "scale"), ElementsAre(3, 3, 3));
}

TEST_F(GltfGaps, OfANodeThatCannotBeHiddenAndWasNeverMeasuredLeaveItWhereItWas) {
  marker_.Transform()->Position().SetConstant({7.0F, 0.0F, 0.0F});
  Measure({{0, 9}}, GapManner::kHide, false);
  const Viewer viewer = View();
  EXPECT_THAT(viewer.File().animations, IsEmpty());
  EXPECT_THAT(viewer.File().nodes[0].translation, ElementsAre(7, 0, 0));
  EXPECT_THAT(viewer.File().nodes[0].scale, ElementsAre(1, 1, 1));
}

struct Pose {
  TimeValue time;
  double place;
  double scale;
};

TEST_F(GltfGaps, AreNotInThePoseOfTheCurrentTimeEither) {
  Measure({{0, 1}, {4, 5}, {8, 9}});
  const std::vector<Pose> poses = {
      {-kFrame, 3, 0},          {0, 3, 0},          {kFrame, 3, 0},         {kFrame * 3 / 2, 3, 0},
      {kFrame * 2, 3, 1},       {kFrame * 3, 4, 1}, {kFrame * 7 / 2, 4, 1}, {kFrame * 4, 4, 0},
      {kFrame * 6, 7, 1},       {kFrame * 7, 8, 1}, {kFrame * 8, 8, 0},     {kFrame * 20, 8, 0},
      {kFrame * 13 / 2, 7.5, 1}};
  for (const Pose& pose : poses) {
    scene_.Animation().SetTime(pose.time);
    const Viewer viewer = View();
    EXPECT_THAT(viewer.File().nodes[0].translation, ElementsAre(pose.place, 0, 0)) << pose.time;
    EXPECT_THAT(viewer.File().nodes[0].scale, ElementsAre(pose.scale, pose.scale, pose.scale))
        << pose.time;
  }
}

TEST_F(GltfGaps, AreInTheKeptSceneAsTheyWere) {
  Measure({{0, 1}, {4, 5}, {8, 9}});
  host::Scene again;
  ASSERT_EQ(host::gltf::ReadScene(Written(scene_), again), "");
  EXPECT_EQ(Description(again), Description(scene_));
}

// Viewers step from frame to frame in double precision, with roundings of their own, and single
// precision has most of these times only a little later.
TEST_F(GltfGaps, BeginAndEndAtTheVeryTimesOfSamples) {
  constexpr int kFrames = 400;
  for (const int rate : {24, 60, 100, 240}) {
    host::Scene scene;
    scene.Animation().SetFrameRate(rate);
    host::Node& marker = AddSphere(scene, nullptr, "marker", 1.0F);
    Measured measured{true, GapManner::kHide, {}};
    for (int frame = 0; frame < kFrames; ++frame) {
      const TimeValue tick = frame * (4800 / rate);
      marker.Transform()->Position().SetKey(tick, {1.0F, 0.0F, 0.0F});
      if (frame % 3 == 1) measured.gaps.push_back({tick, tick});
    }
    marker.SetMeasurement(measured);
    const Viewer viewer(Written(scene));
    const std::vector<double> seconds = viewer.Seconds(0, "scale");
    const std::vector<double> scales = viewer.Values(0, "scale");
    double added = 0.0;
    for (int frame = 0; frame < kFrames; ++frame) {
      for (const double second : {static_cast<double>(frame) / rate, frame * (1.0 / rate), added}) {
        const auto next = std::upper_bound(seconds.begin(), seconds.end(), second);
        const auto key = static_cast<std::size_t>(next - seconds.begin()) - 1;
        ASSERT_EQ(scales[key * 3], frame % 3 == 1 ? 0.0 : 1.0) << second << " at " << rate;
      }
      added += 1.0 / rate;
    }
  }
}

// From 2^18 seconds on, neighbouring numbers in single precision are 150 ticks apart.
TEST_F(GltfGaps, TooShortForSinglePrecisionHideNothingForGood) {
  constexpr TimeValue kLate = 262'144 * 4800;
  for (const TimeValue tick : {0, kLate, kLate + 1, kLate + 2, kLate + 300}) {
    marker_.Transform()->Position().SetKey(tick, {1.0F, 0.0F, 0.0F});
  }
  marker_.SetMeasurement(Measured{true, GapManner::kHide, {{kLate + 1, kLate + 1}}});
  const Viewer viewer = View();
  ExpectNear(Apply(viewer.WorldAt(0, 262'145.0), {1, 0, 0}), {2, 0, 0}, 1e-6);
}

TEST_F(GltfGaps, AreRefusedWhenTheirKeysAreNotFinite) {
  for (const std::vector<Gap>& gaps : {std::vector<Gap>{{2, 4}}, std::vector<Gap>{{0, 9}}}) {
    Measure(gaps);
    marker_.Transform()->Position().SetKey(3 * kFrame,
                                           {std::numeric_limits<float>::infinity(), 0.0F, 0.0F});
    EXPECT_EQ(host::gltf::WriteScene(scene_, {}).refusal,
              "Node \"marker\" cannot be saved: its position at tick 1440 is not finite.");
  }
}

TEST_F(GltfGaps, OfManyMarkersShareTheTimesOfTheirKeys) {
  Measure({{2, 4}});
  host::Node& other = AddSphere(scene_, nullptr, "other", 0.01F);
  for (int frame = 0; frame < 10; ++frame) {
    other.Transform()->Position().SetKey(frame * kFrame, {1.0F, 0.0F, 0.0F});
  }
  const Viewer viewer = View();
  const auto& samplers = viewer.File().animations[0].samplers;
  const auto input = [&](std::size_t node) {
    const int sampler = viewer.ChannelOf(node, "translation")->sampler;
    return samplers.at(static_cast<std::size_t>(sampler)).input;
  };
  EXPECT_EQ(input(0), input(1));
}

}  // namespace
}  // namespace test
