#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "tests/host/gltf/expect.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;

constexpr TimeValue kFirstTick = std::numeric_limits<TimeValue>::min();
constexpr TimeValue kLastTick = std::numeric_limits<TimeValue>::max();

double Dot(const double* left, const double* right) {
  return left[0] * right[0] + left[1] * right[1] + left[2] * right[2] + left[3] * right[3];
}

// A scene of one node that the tests give keys.
class GltfAnimation : public testing::Test {
 protected:
  host::PositionController& Position() { return node_.Transform()->Position(); }
  host::RotationController& Rotation() { return node_.Transform()->Rotation(); }
  host::ScaleController& Scale() { return node_.Transform()->Scale(); }

  Viewer View() const { return Viewer(Written(scene_)); }

  host::Scene scene_;
  host::Node& node_ = AddDummy(scene_, nullptr, "node");
};

TEST_F(GltfAnimation, IsLeftOutWithoutKeys) { EXPECT_THAT(View().File().animations, IsEmpty()); }

TEST_F(GltfAnimation, MovesOnlyWhatHasKeys) {
  Position().SetKey(0, {});
  AddDummy(scene_, nullptr, "turning").Transform()->Rotation().SetKey(0, {});
  AddDummy(scene_, nullptr, "growing").Transform()->Scale().SetKey(0, {});
  const Viewer viewer = View();
  ASSERT_EQ(viewer.File().animations.size(), 1U);
  EXPECT_EQ(viewer.File().animations[0].channels.size(), 3U);
  EXPECT_NE(viewer.ChannelOf(viewer.NodeNamed("node"), "translation"), nullptr);
  EXPECT_NE(viewer.ChannelOf(viewer.NodeNamed("turning"), "rotation"), nullptr);
  EXPECT_NE(viewer.ChannelOf(viewer.NodeNamed("growing"), "scale"), nullptr);
}

TEST_F(GltfAnimation, GoesStraightFromKeyToKey) {
  Position().SetKey(0, {});
  EXPECT_EQ(View().File().animations[0].samplers[0].interpolation, "LINEAR");
}

TEST_F(GltfAnimation, HasTheKeysInSecondsMetersAndYUp) {
  Position().SetKey(0, {1000.0F, 0.0F, 0.0F});
  Position().SetKey(2400, {0.0F, 1000.0F, 0.0F});
  Position().SetKey(9600, {0.0F, 0.0F, 1000.0F});
  Scale().SetKey(4800, {1.0F, 2.0F, 3.0F});
  const Viewer viewer = View();
  EXPECT_THAT(viewer.Seconds(0, "translation"), ElementsAre(0.0, 0.5, 2.0));
  EXPECT_THAT(viewer.Values(0, "translation"), ElementsAre(1, 0, 0, 0, 0, -1, 0, 1, 0));
  EXPECT_THAT(viewer.Seconds(0, "scale"), ElementsAre(1.0));
  EXPECT_THAT(viewer.Values(0, "scale"), ElementsAre(1, 3, 2));
}

TEST_F(GltfAnimation, BeginsWithTheEarliestKeyOfTheScene) {
  Position().SetKey(4800, {});
  Rotation().SetKey(9600, {});
  AddDummy(scene_, nullptr, "earlier").Transform()->Scale().SetKey(-2400, {});
  const Viewer viewer = View();
  EXPECT_THAT(viewer.Seconds(viewer.NodeNamed("earlier"), "scale"), ElementsAre(0.0));
  EXPECT_THAT(viewer.Seconds(0, "translation"), ElementsAre(1.5));
  EXPECT_THAT(viewer.Seconds(0, "rotation"), ElementsAre(2.5));
}

TEST_F(GltfAnimation, SpansAllTimesThatTheHostHas) {
  Position().SetKey(kFirstTick, {});
  Position().SetKey(kLastTick, {});
  const std::vector<double> seconds = View().Seconds(0, "translation");
  EXPECT_THAT(seconds, ElementsAre(0.0, DoubleNear(4294967295.0 / 4800.0, 0.05)));
}

TEST_F(GltfAnimation, WithOneKeyAtTheLastTickBeginsThere) {
  Position().SetKey(kLastTick, {1000.0F, 0.0F, 0.0F});
  EXPECT_THAT(View().Seconds(0, "translation"), ElementsAre(0.0));
}

TEST_F(GltfAnimation, KeepsTheFirstOfKeysThatSinglePrecisionCannotTellApart) {
  // From 2^18 seconds on, neighbouring numbers in single precision are 1/32 of a second apart,
  // which is 150 ticks.
  constexpr TimeValue kLate = 262'144 * 4800;
  Position().SetKey(0, {});
  for (const TimeValue after : {0, 10, 70, 80, 149, 150, 220, 230}) {
    Position().SetKey(kLate + after, {1000.0F * static_cast<float>(after), 0.0F, 0.0F});
  }
  const Viewer viewer = View();
  EXPECT_THAT(viewer.Seconds(0, "translation"),
              ElementsAre(0.0, 262'144.0, 262'144.03125, 262'144.0625));
  EXPECT_THAT(viewer.Values(0, "translation"), ElementsAre(0, 0, 0, 0, 0, 0, 80, 0, 0, 230, 0, 0));
}

TEST_F(GltfAnimation, TurnsAreOfUnitLengthAndNeverTheLongWayRound) {
  for (int key = 0; key < 200; ++key) {
    Quat rotation = TurnAbout(key % 3, 37.0 * key);
    if (key % 2 == 1) rotation = {-rotation.x, -rotation.y, -rotation.z, -rotation.w};
    Rotation().SetKey(key * 160, rotation);
  }
  const std::vector<double> values = View().Values(0, "rotation");
  ASSERT_EQ(values.size(), 800U);
  for (std::size_t i = 0; i < values.size(); i += 4) {
    EXPECT_NEAR(Dot(&values[i], &values[i]), 1.0, 1e-6);
    EXPECT_GE(Dot(&values[i == 0 ? 0 : i - 4], &values[i]), 0.0);
  }
}

TEST_F(GltfAnimation, TurnsInTheTextbookSense) {
  const double half = std::sqrt(0.5);
  Rotation().SetKey(0, {});
  Rotation().SetKey(4800, TurnAbout(2, 90.0));
  EXPECT_THAT(View().Values(0, "rotation"),
              Pointwise(DoubleNear(1e-7), {0.0, 0.0, 0.0, 1.0, 0.0, half, 0.0, half}));
}

TEST_F(GltfAnimation, KeysAtTheSameTimesShareThem) {
  for (TimeValue tick = 0; tick < 1000; tick += 100) {
    Position().SetKey(tick, {});
    Rotation().SetKey(tick, {});
  }
  Scale().SetKey(100, {});
  const Viewer viewer = View();
  const auto& samplers = viewer.File().animations[0].samplers;
  ASSERT_EQ(samplers.size(), 3U);
  EXPECT_EQ(samplers[0].input, samplers[1].input);
  EXPECT_NE(samplers[0].input, samplers[2].input);
}

TEST_F(GltfAnimation, ShowsEveryKeyWhereTheHostHasIt) {
  scene_.SetMillimetersPerUnit(304.8);
  host::Node& arm = AddBone(scene_, &node_, "arm", {2.0F, 0.5F, 0.5F});
  host::Node& hand = AddBone(scene_, &arm, "hand", {1.0F, 0.5F, 0.5F});
  UseTcbRotation(scene_, hand);
  arm.Transform()->Position().SetConstant({1.0F, 2.0F, 3.0F});
  for (int key = -5; key <= 20; ++key) {
    const TimeValue tick = key * 80;
    Position().SetKey(tick, {0.1F * static_cast<float>(key), 0.2F, 3.0F});
    arm.Transform()->Rotation().SetKey(tick, TurnAbout(1, 15.0 * key));
    hand.Transform()->Rotation().SetKey(tick, TurnAbout(2, -25.0 * key));
    hand.Transform()->Scale().SetKey(tick, {1.0F, 1.0F + 0.1F * static_cast<float>(key), 2.0F});
  }
  const Viewer viewer = View();
  for (int key = -5; key <= 20; ++key) {
    const double second = (key + 5) * 80 / 4800.0;
    for (host::Node* node : {&node_, &arm, &hand}) {
      ExpectSameTransform(viewer.WorldAt(viewer.NodeNamed(node->Name()), second),
                          node->WorldTransform(key * 80), 304.8);
    }
  }
}

}  // namespace
}  // namespace test
