#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "host/gltf/reader.h"
#include "host/gltf/writer.h"
#include "host/scene/bone_object.h"
#include "tests/host/gltf/joints/skin_file.h"
#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// Skeletons out of files that keep no scene.

namespace test {
namespace {

using host::gltf::RateSource;
using host::gltf::SkinOptions;
using host::gltf::SkinReading;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Two joints in a row along Y, the second 0.5 m above the first, which stands at 1 m.
SkinFile TwoJoints() {
  SkinFile file;
  const int hips = file.AddNode("Hips", -1, {{"translation", {0, 1, 0}}});
  const int spine = file.AddNode("Spine", hips, {{"translation", {0, 0.5, 0}}});
  file.AddSkin({hips, spine});
  return file;
}

class SkinsTest : public testing::Test {
 protected:
  void Read(SkinFile file, const SkinOptions& options = {}) {
    EXPECT_EQ(host::gltf::ReadSceneOrSkins(file.Bytes(), options, scene_, reading_), "");
    EXPECT_TRUE(reading_.is_skin);
    EXPECT_EQ(scene_.Misuse().Count(), 0U);
    EXPECT_EQ(scene_.LooseInstances(), 0U);
  }

  static std::string Refusal(SkinFile file, const SkinOptions& options = {}) {
    host::Scene scene;
    SkinReading reading;
    return host::gltf::ReadSceneOrSkins(file.Bytes(), options, scene, reading);
  }

  host::Node& Bone(const std::string& name) {
    host::Node* const node = scene_.FindByName(name);
    EXPECT_NE(node, nullptr) << name;
    return node == nullptr ? scene_.Root() : *node;
  }

  TimeValue Tick(int frame) const { return frame * scene_.Animation().TicksPerFrame(); }

  // In millimetres and the host's axes: Z is up.
  void ExpectAt(const std::string& name, int frame, const std::array<double, 3>& place) {
    const Point3 origin = Bone(name).WorldTransform(Tick(frame)).GetRow(3);
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(origin[i], place[static_cast<std::size_t>(i)], 1e-3) << name << " " << frame;
    }
  }

  host::Scene scene_;
  SkinReading reading_;
};

// --- What becomes of joints ---

TEST_F(SkinsTest, JointsBecomeBonesInMillimetersWithZUp) {
  Read(TwoJoints());
  EXPECT_EQ(scene_.NodeCount(), 2U);
  EXPECT_EQ(Bone("Spine").Parent(), &Bone("Hips"));
  ExpectAt("Hips", 1, {0, 0, 1000});
  ExpectAt("Spine", 1, {0, 0, 1500});
  EXPECT_THAT(scene_.Selection(), ElementsAre(&Bone("Hips")));
}

TEST_F(SkinsTest, TheAxisTowardsTheJointsBelowIsTheLongOne) {
  for (const auto& way : std::vector<std::vector<double>>{
           {0.5, 0, 0}, {-0.5, 0, 0}, {0, 0.5, 0}, {0, -0.5, 0}, {0, 0, 0.5}, {0, 0, -0.5}}) {
    SkinFile file = TwoJoints();
    file.document["nodes"][1]["translation"] = way;
    host::Scene scene;
    ASSERT_EQ(host::gltf::ReadSceneOrSkins(file.Bytes(), {}, scene, reading_), "");
    const Point3 place =
        scene.FindByName("Spine")->LocalTransform(scene.Animation().Time()).GetRow(3);
    EXPECT_NEAR(place.x, 500.0F, 1e-3F);
    EXPECT_NEAR(place.y, 0.0F, 1e-3F);
    EXPECT_NEAR(place.z, 0.0F, 1e-3F);
    const auto* bone =
        dynamic_cast<const host::BoneObject*>(scene.FindByName("Hips")->ShownObject());
    ASSERT_NE(bone, nullptr);
    EXPECT_NEAR(bone->Parameter(kBoneLengthParameter), 500.0F, 1e-3F);
  }
}

TEST_F(SkinsTest, WhatStandsBetweenAndAboveJointsTakesPart) {
  SkinFile file;
  const int top = file.AddNode("Armature", -1, {{"scale", {0.01, 0.01, 0.01}}});
  const int hips = file.AddNode("Hips", top, {{"translation", {0, 100, 0}}});
  const int helper = file.AddNode("Helper", hips, {{"translation", {0, 30, 0}}});
  const int spine = file.AddNode("Spine", helper, {{"translation", {0, 20, 0}}});
  file.AddNode("Mesh", top);
  file.AddSkin({hips, spine});
  file.AddKeys(helper, "translation", {0, 1}, {0, 30, 0, 0, 30, 10});
  Read(file, {{{10, 1}}, ""});
  EXPECT_EQ(scene_.NodeCount(), 2U);
  EXPECT_EQ(Bone("Spine").Parent(), &Bone("Hips"));
  ExpectAt("Spine", 1, {0, 0, 1500});
  ExpectAt("Spine", 11, {0, -100, 1500});
}

TEST_F(SkinsTest, SeveralSkeletonsAreAllThereAndNoneIsSelected) {
  SkinFile file = TwoJoints();
  const int other = file.AddNode("Other", -1, {{"translation", {3, 0, 0}}});
  file.AddSkin({other});
  Read(file);
  EXPECT_EQ(scene_.Root().Children().size(), 2U);
  ExpectAt("Other", 1, {3000, 0, 0});
  EXPECT_THAT(scene_.Selection(), IsEmpty());
}

TEST_F(SkinsTest, NamesAreMadeSuchThatAMotionFileCanHaveThem) {
  SkinFile file;
  const int hips = file.AddNode("Hips", -1);
  const int left = file.AddNode("Left Arm", hips);
  const int right = file.AddNode("Hips", hips);
  const int nameless = file.AddNode("", right);
  file.AddSkin({hips, left, right, nameless});
  Read(file);
  std::vector<std::string> names = {scene_.Root().Children().front()->Name()};
  for (const host::Node* child : scene_.Root().Children().front()->Children()) {
    names.push_back(child->Name());
  }
  EXPECT_THAT(names, ElementsAre("Hips", "Left_Arm", testing::StartsWith("Hips0")));
  EXPECT_NE(scene_.FindByName("joint_3"), nullptr);
  EXPECT_THAT(reading_.renamed, ElementsAre("Left Arm", "Hips", ""));
}

// --- The rest pose ---

TEST_F(SkinsTest, RestsAsTheSkinIsBoundAndNotAsItStands) {
  SkinFile file = TwoJoints();
  file.BindAt({{0, 2, 0}, {0, 2.25, 0}});
  Read(file);
  EXPECT_EQ(scene_.Animation().Time(), Tick(0));
  ExpectAt("Hips", 0, {0, 0, 2000});
  ExpectAt("Spine", 0, {0, 0, 2250});
  ExpectAt("Spine", 1, {0, 0, 1500});
}

TEST_F(SkinsTest, RestsAsItStandsWithoutMatricesForAllOfIt) {
  SkinFile file = TwoJoints();
  file.document["skins"][0]["joints"] = {0};
  file.BindAt({{0, 2, 0}});
  file.document["skins"].push_back({{"joints", {1}}});
  Read(file);
  ExpectAt("Hips", 0, {0, 0, 1000});
}

TEST_F(SkinsTest, RestsInTheSpaceOfTheSkinsMesh) {
  SkinFile file;
  // The mesh is in centimetres, and lies on its back: a node above makes up for it.
  const int top = file.AddNode(
      "Armature", -1, {{"scale", {0.01, 0.01, 0.01}}, {"rotation", {-kHalf, 0, 0, kHalf}}});
  const int hips = file.AddNode("Hips", top, {{"translation", {0, 0, 90}}});
  const int spine = file.AddNode("Spine", hips, {{"translation", {0, 0, 50}}});
  file.AddSkin({hips, spine});
  file.BindAt({{0, 0, 100}, {0, 0, 150}});
  Read(file);
  ExpectAt("Hips", 0, {0, 0, 1000});
  ExpectAt("Spine", 0, {0, 0, 1500});
  ExpectAt("Hips", 1, {0, 0, 900});
}

// --- Keys and frames ---

TEST_F(SkinsTest, KeysAreJoinedAsTheFileSays) {
  struct Case {
    const char* join;
    std::vector<float> values;
    double middle;  // millimetres up
  };
  for (const Case& each :
       {Case{"LINEAR", {0, 1, 0, 0, 3, 0}, 2000}, Case{"STEP", {0, 1, 0, 0, 3, 0}, 1000},
        // Tangents of 4 m a second on either side: 2 + 4/8 - (-4)/8 = 3.
        Case{"CUBICSPLINE", {0, 0, 0, 0, 1, 0, 0, 4, 0, 0, -4, 0, 0, 3, 0, 0, 0, 0}, 3000}}) {
    SkinFile file = TwoJoints();
    file.AddKeys(0, "translation", {0, 1}, each.values, each.join);
    host::Scene scene;
    ASSERT_EQ(host::gltf::ReadSceneOrSkins(file.Bytes(), {{{10, 1}}, ""}, scene, reading_), "");
    const TimeValue middle = 6 * scene.Animation().TicksPerFrame();
    EXPECT_NEAR(scene.FindByName("Hips")->WorldTransform(middle).GetRow(3).z, each.middle, 1e-3)
        << each.join;
  }
}

TEST_F(SkinsTest, TurnsGoTheShorterWay) {
  SkinFile file = TwoJoints();
  file.document["nodes"][1]["translation"] = {0.5, 0, 0};
  const auto c = static_cast<float>(kHalf);
  // By 90 degrees about Z, as the quaternion of the other sign.
  file.AddKeys(0, "rotation", {0, 1}, {0, 0, 0, 1, 0, 0, -c, -c});
  Read(file, {{{10, 1}}, ""});
  ExpectAt("Spine", 1, {500, 0, 1000});
  ExpectAt("Spine", 6, {500 * kHalf, 0, 1000 + 500 * kHalf});
  ExpectAt("Spine", 11, {0, 0, 1500});
}

TEST_F(SkinsTest, TurnsMayBeFractionsAsIntegers) {
  SkinFile file = TwoJoints();
  file.document["nodes"][1]["translation"] = {0.5, 0, 0};
  file.AddKeys(0, "rotation", {0}, {0, 0, 0, 0});
  json& accessor = file.document["accessors"].back();
  accessor["componentType"] = 5122;
  accessor["normalized"] = true;
  // Half a turn about Z.
  const std::int16_t numbers[] = {0, 0, 32767, 0};
  std::memcpy(&file.binary[file.binary.size() - 16], numbers, sizeof numbers);
  Read(file);
  ExpectAt("Spine", 1, {-500, 0, 1000});
}

TEST_F(SkinsTest, TheFirstKeyIsFrameOne) {
  SkinFile file = TwoJoints();
  file.AddKeys(0, "translation", {2.0F, 2.25F}, {0, 1, 0, 0, 2, 0});
  Read(file, {{{20, 1}}, ""});
  EXPECT_EQ(scene_.Animation().Range().Start(), Tick(1));
  EXPECT_EQ(scene_.Animation().Range().End(), Tick(6));
  ExpectAt("Hips", 1, {0, 0, 1000});
  ExpectAt("Hips", 6, {0, 0, 2000});
}

TEST_F(SkinsTest, TheLastKeyIsNeverLeftOut) {
  SkinFile file = TwoJoints();
  file.AddKeys(0, "translation", {0, 0.98F}, {0, 1, 0, 0, 2, 0});
  Read(file, {{{10, 1}}, ""});
  EXPECT_EQ(scene_.Animation().Range().End(), Tick(11));
  ExpectAt("Hips", 11, {0, 0, 2000});
  EXPECT_EQ(reading_.keys_between, 1U);
}

TEST_F(SkinsTest, WithoutAnimationThereIsOneFrame) {
  Read(TwoJoints());
  EXPECT_EQ(scene_.Animation().Range().Start(), Tick(1));
  EXPECT_EQ(scene_.Animation().Range().End(), Tick(1));
  EXPECT_THAT(reading_.clip, IsEmpty());
}

std::vector<float> Times(double rate, int count) {
  std::vector<float> seconds;
  seconds.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) seconds.push_back(static_cast<float>(i / rate));
  return seconds;
}

TEST_F(SkinsTest, TheRateIsThatOfTheKeys) {
  struct Case {
    double rate;
    host::Rate taken;
    RateSource source;
  };
  for (const Case& each :
       {Case{60, {60, 1}, RateSource::kKeys}, Case{24, {24, 1}, RateSource::kKeys},
        Case{59.94005994, {60000, 1001}, RateSource::kKeys}, Case{250, {250, 1}, RateSource::kKeys},
        // Keys that somebody has set by hand.
        Case{2, {30, 1}, RateSource::kAssumed}, Case{12.5, {30, 1}, RateSource::kAssumed}}) {
    SkinFile file = TwoJoints();
    const std::vector<float> seconds = Times(each.rate, 400);
    file.AddKeys(0, "translation", seconds, std::vector<float>(seconds.size() * 3));
    host::Scene scene;
    ASSERT_EQ(host::gltf::ReadSceneOrSkins(file.Bytes(), {}, scene, reading_), "");
    EXPECT_EQ(reading_.rate, each.taken) << each.rate;
    EXPECT_EQ(reading_.rate_source, each.source) << each.rate;
  }
}

TEST_F(SkinsTest, OurOwnFilesTellTheRateAndTheFirstFrame) {
  SkinFile file = TwoJoints();
  file.document["scenes"][0]["extras"] = {{"frameRate", {{"numerator", 120}, {"denominator", 1}}},
                                          {"firstFrame", 7}};
  file.AddKeys(0, "translation", Times(60, 3), std::vector<float>(9));
  Read(file);
  EXPECT_EQ(scene_.Animation().FrameRate(), 120);
  EXPECT_EQ(scene_.Animation().Range().Start(), Tick(7));
  EXPECT_EQ(scene_.Animation().Range().End(), Tick(11));
  EXPECT_EQ(reading_.rate_source, RateSource::kRecording);
}

TEST_F(SkinsTest, ExtrasOfOtherMakersAreNotTakenForThese) {
  for (const json& extras :
       {json(3), json{{"frameRate", 60}, {"firstFrame", "1"}}, json{{"firstFrame", 1e300}},
        json{{"frameRate", {{"numerator", -1}, {"denominator", 0}}}}}) {
    SkinFile file = TwoJoints();
    file.document["scenes"][0]["extras"] = extras;
    file.AddKeys(0, "translation", Times(60, 3), std::vector<float>(9));
    host::Scene scene;
    ASSERT_EQ(host::gltf::ReadSceneOrSkins(file.Bytes(), {}, scene, reading_), "");
    EXPECT_EQ(scene.Animation().FrameRate(), 60);
    EXPECT_EQ(scene.Animation().Range().Start(), 80);
  }
}

TEST_F(SkinsTest, OneAnimationIsTakenByItsName) {
  SkinFile file = TwoJoints();
  const int prop = file.AddNode("Prop", -1);
  file.AddKeys(prop, "translation", {0}, {0, 0, 0}, "LINEAR", 0);
  file.AddKeys(0, "translation", {0}, {0, 2, 0}, "LINEAR", 1);
  file.AddKeys(0, "translation", {0}, {0, 3, 0}, "LINEAR", 2);
  file.document["animations"][0]["name"] = "door";
  file.document["animations"][1]["name"] = "walk";
  Read(file);
  EXPECT_EQ(reading_.clip, "walk");
  EXPECT_THAT(reading_.other_clips, ElementsAre("animation 3"));
  ExpectAt("Hips", 1, {0, 0, 2000});
  host::Scene scene;
  ASSERT_EQ(host::gltf::ReadSceneOrSkins(file.Bytes(), {{}, "animation 3"}, scene, reading_), "");
  EXPECT_NEAR(scene.FindByName("Hips")->WorldTransform(160).GetRow(3).z, 3000.0F, 1e-3F);
  EXPECT_EQ(Refusal(file, {{}, "door"}),
            "No animation of the file that moves joints is named \"door\".");
}

// --- Our own files ---

TEST_F(SkinsTest, OfAFileThatKeepsASceneTheSceneIsTaken) {
  host::Scene scene;
  AddBone(scene, nullptr, "bone");
  AddPoint(scene, nullptr, "point");
  host::Scene again;
  EXPECT_EQ(host::gltf::ReadSceneOrSkins(Written(scene), {}, again, reading_), "");
  EXPECT_FALSE(reading_.is_skin);
  EXPECT_EQ(again.NodeCount(), 2U);
}

TEST_F(SkinsTest, WhatViewersSeeOfAnImportComesBack) {
  host::Scene scene;
  host::Node& hips = AddBone(scene, nullptr, "Hips");
  host::Node& spine = AddBone(scene, &hips, "Spine");
  scene.Animation().SetFrameRate(60);
  scene.SetRecording(host::Recording{{{60, 1}}, 1, "mm", "in.htr", false});
  for (int frame = 1; frame <= 20; ++frame) {
    hips.Transform()->Position().SetKey(frame * 80, Point3(static_cast<float>(frame), 20, 900));
    hips.Transform()->Rotation().SetKey(frame * 80, TurnAbout(frame % 3, frame * 10.0));
    spine.Transform()->Position().SetKey(frame * 80, Point3(200, 0, 0));
    spine.Transform()->Rotation().SetKey(frame * 80, TurnAbout(1, frame * 17.0));
  }
  SkinReading reading;
  ASSERT_EQ(host::gltf::ReadSceneOrSkins(Written(scene, {host::gltf::Container::kText, "in", true}),
                                         {}, scene_, reading),
            "");
  for (int frame = 1; frame <= 20; ++frame) {
    for (const auto& [left, right] : {std::pair(&hips, "Hips"), std::pair(&spine, "Spine")}) {
      const Matrix3 expected = left->WorldTransform(frame * 80);
      const Matrix3 actual = Bone(right).WorldTransform(frame * 80);
      for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column) {
          EXPECT_NEAR(actual.GetRow(row)[column], expected.GetRow(row)[column],
                      row == 3 ? 1e-3 : 1e-6);
        }
      }
    }
  }
}

// --- What is refused ---

TEST_F(SkinsTest, ScalesAreRefusedWithTheReason) {
  const std::string kAdvice =
      "; a motion file holds turns and places of bones, and none of that. Take it out where the "
      "file was made.";
  SkinFile uneven = TwoJoints();
  uneven.document["nodes"][1]["scale"] = {1, 2, 1};
  EXPECT_EQ(Refusal(uneven),
            "The joint \"Spine\" is scaled unevenly, sheared or mirrored" + kAdvice);
  SkinFile mirrored = TwoJoints();
  mirrored.document["nodes"][0]["scale"] = {-1, 1, 1};
  EXPECT_EQ(Refusal(mirrored),
            "The joint \"Hips\" is scaled unevenly, sheared or mirrored" + kAdvice);
  SkinFile sheared = TwoJoints();
  sheared.document["nodes"][0].erase("translation");
  sheared.document["nodes"][0]["matrix"] = {1, 0, 0, 0, 0.5, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
  EXPECT_EQ(Refusal(sheared),
            "The joint \"Hips\" is scaled unevenly, sheared or mirrored" + kAdvice);
  SkinFile larger = TwoJoints();
  larger.document["nodes"][1]["scale"] = {2, 2, 2};
  EXPECT_EQ(Refusal(larger),
            "The joint \"Spine\" has another size than the first joint of the file has at first" +
                kAdvice);
  SkinFile growing = TwoJoints();
  growing.AddKeys(0, "scale", {0, 1}, {1, 1, 1, 2, 2, 2});
  EXPECT_EQ(Refusal(growing, {{{10, 1}}, ""}),
            "The joint \"Hips\" has another size than the first joint of the file has at first at "
            "0.100 s" +
                kAdvice);
}

TEST_F(SkinsTest, ScalesThatAreNothingButRoundingAreNot) {
  SkinFile file = TwoJoints();
  file.document["nodes"][0]["scale"] = {1.00001, 0.9999999, 1};
  Read(file);
  ExpectAt("Spine", 1, {0, 0, 1500});
}

TEST_F(SkinsTest, WithoutJointsTheFileIsRefusedAsOneWithoutAScene) {
  SkinFile file;
  file.AddNode("Empty", -1);
  EXPECT_EQ(Refusal(file),
            "The file was not saved by this program, or another has saved it since: the extension "
            "ORVANE_scene is missing.");
}

TEST_F(SkinsTest, DataInAnotherFileIsRefusedWithItsName) {
  host::Scene scene;
  SkinReading reading;
  EXPECT_EQ(host::gltf::ReadSceneOrSkins(
                R"({"asset":{"version":"2.0"},"buffers":[{"byteLength":4,"uri":"walk.bin"}]})", {},
                scene, reading),
            "The data of the file is in another one, \"walk.bin\": save it as one file, .glb, or "
            "with the data embedded.");
}

TEST_F(SkinsTest, FarTooManyFramesAreRefused) {
  SkinFile file = TwoJoints();
  file.AddKeys(0, "translation", {0, 1e9F}, {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(Refusal(file),
            "There are 2 keys in the animation, and far too many frames between the first and the "
            "last of them; --rate takes fewer in a second.");
  SkinFile wide = TwoJoints();
  for (int i = 0; i < 100; ++i) {
    wide.document["skins"][0]["joints"].push_back(wide.AddNode("j" + std::to_string(i), 0));
  }
  wide.AddKeys(0, "translation", {0, 20}, {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(Refusal(wide, {{{4800, 1}}, ""}),
            "The file is far too short for 96001 frames of 102 joints; --rate takes fewer in a "
            "second.");
}

struct Damage {
  const char* name;
  std::function<void(SkinFile&)> damage;
  const char* fault;
};

class DamagedSkins : public testing::TestWithParam<Damage> {};

TEST_P(DamagedSkins, AreRefused) {
  SkinFile file = TwoJoints();
  file.BindAt({{0, 0, 0}, {0, 0, 0}});
  file.AddKeys(0, "translation", {0, 1}, {0, 0, 0, 0, 0, 0});
  file.AddKeys(1, "rotation", {0, 1}, {0, 0, 0, 1, 0, 0, 0, 1});
  GetParam().damage(file);
  host::Scene scene;
  SkinReading reading;
  EXPECT_EQ(host::gltf::ReadSceneOrSkins(file.Bytes(), {}, scene, reading),
            std::string("The scene in the file is damaged: ") + GetParam().fault + ".");
}

void Overwrite(SkinFile& file, std::size_t accessor, float number) {
  const std::size_t view = file.document["accessors"][accessor]["bufferView"];
  const std::size_t offset = file.document["bufferViews"][view]["byteOffset"];
  std::memcpy(&file.binary[offset], &number, sizeof number);
}

INSTANTIATE_TEST_SUITE_P(
    InEveryWay, DamagedSkins,
    testing::Values(
        Damage{"Circle", [](SkinFile& file) { file.document["nodes"][1]["children"] = {0}; },
               "nodes hang from each other in a circle"},
        Damage{"ItsOwnChild", [](SkinFile& file) { file.document["nodes"][1]["children"] = {1}; },
               "nodes[1].children[0] is a node that has a parent already"},
        Damage{"TwoParents",
               [](SkinFile& file) {
                 file.AddNode("x", -1, {{"children", {1}}});
               },
               "nodes[2].children[0] is a node that has a parent already"},
        Damage{"NoSuchChild", [](SkinFile& file) { file.document["nodes"][1]["children"] = {2}; },
               "nodes[1].children[0] is no whole number from 0 to 1"},
        Damage{"NoSuchJoint", [](SkinFile& file) { file.document["skins"][0]["joints"] = {9}; },
               "skins[0].joints[0] is no whole number from 0 to 1"},
        Damage{"ShortTurn",
               [](SkinFile& file) {
                 file.document["nodes"][1]["rotation"] = {0, 0, 1};
               },
               "nodes[1].rotation is no list of 4 numbers"},
        Damage{"TooLarge",
               [](SkinFile& file) {
                 file.document["nodes"][1]["translation"] = {0, 0, 1e39};
               },
               "nodes[1].translation[2] is too large"},
        Damage{"FewMatrices", [](SkinFile& file) { file.document["accessors"][0]["count"] = 1; },
               "skins[0].inverseBindMatrices is the index of fewer than the joints"},
        Damage{"NoSuchAccessor",
               [](SkinFile& file) { file.document["animations"][0]["samplers"][0]["output"] = 99; },
               "animations[0].samplers[0].output is no whole number from 0 to 4"},
        Damage{"OtherType", [](SkinFile& file) { file.document["accessors"][2]["type"] = "VEC4"; },
               "accessors[2].type is not VEC3"},
        Damage{"OtherNumbers",
               [](SkinFile& file) { file.document["accessors"][2]["componentType"] = 5122; },
               "accessors[2].componentType is not 5126, which stands for floats"},
        Damage{"Sparse",
               [](SkinFile& file) { file.document["accessors"][2]["sparse"] = json::object(); },
               "accessors[2] is sparse, which this program does not read"},
        Damage{"BeyondTheView", [](SkinFile& file) { file.document["accessors"][2]["count"] = 3; },
               "accessors[2].count is no whole number from 0 to 2"},
        Damage{"BeyondTheViewByStride",
               [](SkinFile& file) { file.document["bufferViews"][2]["byteStride"] = 16; },
               "accessors[2].count is no whole number from 0 to 1"},
        Damage{"StrideTooShort",
               [](SkinFile& file) { file.document["bufferViews"][2]["byteStride"] = 4; },
               "bufferViews[2].byteStride is no whole number from 12 to 252"},
        Damage{"BeyondTheFile",
               [](SkinFile& file) { file.document["bufferViews"][2]["byteOffset"] = 1 << 30; },
               "bufferViews[2].byteOffset is no whole number from 0 to 200"},
        Damage{"OtherBuffer", [](SkinFile& file) { file.document["bufferViews"][2]["buffer"] = 1; },
               "bufferViews[2].buffer is no whole number from 0 to 0"},
        Damage{"OtherCount", [](SkinFile& file) { file.document["accessors"][2]["count"] = 1; },
               "animations[0].samplers[0].output is not the index of 2 values, as there are keys"},
        Damage{"NoTimes", [](SkinFile& file) { file.document["accessors"][1]["count"] = 0; },
               "animations[0].samplers[0].input is the index of no times"},
        Damage{"TimesThatFall", [](SkinFile& file) { Overwrite(file, 1, 2.0F); },
               "animations[0].samplers[0].input is the index of times that do not rise"},
        Damage{"NotFinite", [](SkinFile& file) { Overwrite(file, 2, INFINITY); },
               "accessors[2] is a list of numbers that are not all finite"},
        Damage{"OtherJoin",
               [](SkinFile& file) {
                 file.document["animations"][0]["samplers"][0]["interpolation"] = "BEZIER";
               },
               "animations[0].samplers[0].interpolation is neither LINEAR nor STEP nor "
               "CUBICSPLINE"},
        Damage{"MovedMatrix",
               [](SkinFile& file) {
                 file.document["nodes"][0]["matrix"] = {1, 0, 0, 0, 0, 1, 0, 0,
                                                        0, 0, 1, 0, 0, 0, 0, 1};
               },
               "animations[0].channels[0].target.node is a node with a matrix, which cannot be "
               "moved"}),
    [](const auto& damage) { return damage.param.name; });

// A small file could take any time if all of its accessors told of the same bytes.
TEST_F(SkinsTest, TheSameBytesAgainAndAgainAreRefused) {
  SkinFile file = TwoJoints();
  file.AddKeys(0, "translation", Times(60, 1000), std::vector<float>(3000));
  json& samplers = file.document["animations"][0]["samplers"];
  for (int i = 0; i < 100; ++i) {
    file.document["accessors"].push_back(file.document["accessors"][1]);
    const int node = file.AddNode("j", 0);
    file.document["skins"][0]["joints"].push_back(node);
    samplers.push_back({{"input", 0}, {"output", file.document["accessors"].size() - 1}});
    file.document["animations"][0]["channels"].push_back(
        {{"sampler", samplers.size() - 1}, {"target", {{"node", node}, {"path", "translation"}}}});
  }
  EXPECT_THAT(Refusal(file), HasSubstr(" is one of many that tell of the same bytes."));
}

TEST_F(SkinsTest, FilesWithAnyByteChangedNeverCrash) {
  SkinFile file = TwoJoints();
  file.BindAt({{0, 0, 0}, {0, 0, 0}});
  file.AddKeys(0, "translation", {0, 0.1F}, {0, 0, 0, 0, 0, 0});
  const std::string bytes = file.Bytes();
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    for (const char byte : {'\0', '9', '"', '\xFF'}) {
      std::string changed = bytes;
      changed[i] = byte;
      host::Scene scene;
      SkinReading reading;
      (void)host::gltf::ReadSceneOrSkins(changed, {}, scene, reading);
    }
  }
}

}  // namespace
}  // namespace test
