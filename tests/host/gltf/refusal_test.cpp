#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>

#include "sdk/core/object.h"
#include "sdk/paramblk2/parameter_block.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kLargest = std::numeric_limits<float>::max();

std::string Refusal(const host::Scene& scene) {
  const host::gltf::WrittenScene written = host::gltf::WriteScene(scene, {});
  EXPECT_TRUE(written.bytes.empty());
  return written.refusal;
}

class GltfRefusal : public testing::TestWithParam<float> {
 protected:
  host::Scene scene_;
  host::Node& node_ = AddBone(scene_, nullptr, "Hips \xFF");
  host::TransformController& transform_ = *node_.Transform();
};

TEST_P(GltfRefusal, NamesThePositionKey) {
  transform_.Position().SetKey(0, {});
  transform_.Position().SetKey(160, {0.0F, GetParam(), 0.0F});
  EXPECT_EQ(Refusal(scene_),
            "Node \"Hips \xEF\xBF\xBD\" cannot be saved: its position at tick 160 is not finite.");
}

TEST_P(GltfRefusal, NamesTheRotationKey) {
  UseTcbRotation(scene_, node_);
  transform_.Rotation().SetKey(-160, {0.0F, 0.0F, GetParam(), 1.0F});
  EXPECT_EQ(Refusal(scene_),
            "Node \"Hips \xEF\xBF\xBD\" cannot be saved: its rotation at tick -160 is not finite.");
}

TEST_P(GltfRefusal, NamesTheScaleKey) {
  transform_.Scale().SetKey(5, {GetParam(), 1.0F, 1.0F});
  EXPECT_EQ(Refusal(scene_),
            "Node \"Hips \xEF\xBF\xBD\" cannot be saved: its scale at tick 5 is not finite.");
}

TEST_P(GltfRefusal, NamesAKeyThatWouldBeLeftOut) {
  transform_.Position().SetKey(0, {});
  transform_.Position().SetKey(1'258'291'200, {});
  transform_.Position().SetKey(1'258'291'201, {GetParam(), 0.0F, 0.0F});
  EXPECT_EQ(Refusal(scene_),
            "Node \"Hips \xEF\xBF\xBD\" cannot be saved: its position at tick 1258291201 is not "
            "finite.");
}

TEST_P(GltfRefusal, NamesAValueWithoutKeysAtTheCurrentTime) {
  transform_.Position().SetConstant({0.0F, 0.0F, GetParam()});
  scene_.Animation().SetTime(480);
  EXPECT_EQ(Refusal(scene_),
            "Node \"Hips \xEF\xBF\xBD\" cannot be saved: its position at tick 480 is not finite.");
}

TEST_P(GltfRefusal, NamesAShape) {
  for (const BoneSize& size : {BoneSize{GetParam(), 1.0F, 1.0F}, BoneSize{1.0F, GetParam(), 1.0F},
                               BoneSize{1.0F, 1.0F, GetParam()}}) {
    host::Scene scene;
    AddBone(scene, nullptr, "bone", size);
    EXPECT_EQ(Refusal(scene), "Node \"bone\" cannot be saved: its shape at tick 0 is not finite.");
  }
  host::Scene scene;
  AddSphere(scene, nullptr, "sphere", GetParam());
  EXPECT_EQ(Refusal(scene), "Node \"sphere\" cannot be saved: its shape at tick 0 is not finite.");
}

INSTANTIATE_TEST_SUITE_P(EveryNumberThatIsNotFinite, GltfRefusal,
                         testing::Values(kInfinity, -kInfinity, kNotANumber));

TEST(GltfRefusals, OfABoneWhoseParentsTakeItTooFar) {
  host::Scene scene;
  host::Node& parent = AddDummy(scene, nullptr, "parent");
  parent.Transform()->Scale().SetConstant({1e30F, 1e30F, 1e30F});
  AddBone(scene, &parent, "bone", {1e30F, 1.0F, 1.0F});
  EXPECT_EQ(Refusal(scene), "Node \"bone\" cannot be saved: its shape at tick 0 is not finite.");
}

TEST(GltfRefusals, OfWhatOnlyTheFileKeeps) {
  using Spoil = void (*)(host::Node & node);
  const std::pair<Spoil, const char*> spoilt[] = {
      {[](host::Node& node) { node.SetUserPropertyFloat("width \xFF", kNotANumber); },
       "user property \"width \xEF\xBF\xBD\""},
      {[](host::Node& node) {
         node.GetObjectReference()->GetFirstParameterBlock()->SetValue(2, 0, kNotANumber);
       },
       "object"},
      {[](host::Node& node) {
         node.Transform()->Scale().SetConstant({kInfinity, 1.0F, 1.0F});
         node.Transform()->Scale().SetKey(0, {1.0F, 1.0F, 1.0F});
       },
       "scale without keys"},
  };
  for (const auto& [spoil, what] : spoilt) {
    host::Scene scene;
    spoil(AddBone(scene, nullptr, "bone"));
    EXPECT_EQ(Refusal(scene),
              std::string("Node \"bone\" cannot be saved: its ") + what + " is not finite.");
  }
}

TEST(GltfRefusals, OfAnObjectOffset) {
  host::Scene scene;
  AddDummy(scene, nullptr, "node").SetObjectOffset(Matrix3({}, {}, {}, {kInfinity, 0.0F, 0.0F}));
  EXPECT_EQ(Refusal(scene), "Node \"node\" cannot be saved: its object offset is not finite.");
}

TEST(GltfRefusals, OfANumberThatIsTooLargeInMeters) {
  host::Scene scene;
  scene.SetMillimetersPerUnit(1e6);
  AddDummy(scene, nullptr, "node").Transform()->Position().SetKey(7, {kLargest, 0.0F, 0.0F});
  EXPECT_EQ(Refusal(scene), "Node \"node\" cannot be saved: its position at tick 7 is not finite.");
}

}  // namespace
}  // namespace test
