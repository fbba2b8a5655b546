#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/host/gltf/joints/skin_file.h"

// Exports of files that keep no scene: skeletons that other programs have saved.

namespace {

using nlohmann::json;
using test::CodesIn;
using test::ProgramResult;
using test::SkinFile;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char kFiles[] = ORVANE_SOURCE_DIR "/tests/data/gltf/";

class ExportSkinsTest : public test::OrvaneTest {
 protected:
  // An arm of two joints, which turns for a second.
  static SkinFile Arm(const std::string& name = "Arm") {
    SkinFile file;
    const int upper = file.AddNode(name, -1);
    const int lower = file.AddNode("Hand", upper, {{"translation", {0, 0.3, 0}}});
    file.AddSkin({upper, lower});
    file.AddKeys(upper, "rotation", {0, 0.5F, 1}, {0, 0, 0, 1, 0, 0, 0.6F, 0.8F, 0, 0, 0.8F, 0.6F});
    return file;
  }

  ProgramResult Export(SkinFile file, const std::vector<std::string>& flags) const {
    Write("arm.glb", file.Bytes());
    std::vector<std::string> arguments = {"export", "arm.glb", "-o", "arm.htr", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }
};

// --- What programs have saved ---

TEST_F(ExportSkinsTest, FilesOfBlenderComeBack) {
  const std::string source = std::string(kFiles) + "small.htr";
  const ProgramResult exported =
      Orvane({"export", std::string(kFiles) + "blender-kept-bones.glb", "-o", "back.htr"});
  EXPECT_EQ(exported.status, 0) << exported.error;
  EXPECT_THAT(exported.error, IsEmpty());
  EXPECT_THAT(exported.output, HasSubstr("Frames    1 to 6 at 60 frames per second\n"));
  const ProgramResult compared =
      Orvane({"compare", source, "back.htr", "--tolerance-mm", "0.01", "--tolerance-deg", "0.01"});
  EXPECT_EQ(compared.status, 0) << compared.output;
}

TEST_F(ExportSkinsTest, FilesOfBlenderWithTurnedBonesHaveTheJointsWhereTheyWere) {
  EXPECT_EQ(
      Orvane({"export", std::string(kFiles) + "blender-turned-bones.glb", "-o", "back.htr"}).status,
      0);
  const ProgramResult compared = Orvane({"compare", std::string(kFiles) + "small.htr", "back.htr",
                                         "--tolerance-mm", "0.01", "--tolerance-deg", "180"});
  EXPECT_EQ(compared.status, 0) << compared.output;
}

TEST_F(ExportSkinsTest, WhatViewersSeeOfTheExamplesComesBack) {
  for (const std::string& file :
       {std::string(ORVANE_SOURCE_DIR "/examples/walk.htr"), std::string(kFiles) + "small.htr"}) {
    for (const char* scene : {"seen.glb", "seen.gltf"}) {
      ASSERT_EQ(Orvane({"import", file, "-o", scene, "--plain", "--quiet", "--force"}).status, 0);
      const ProgramResult exported = Orvane({"export", scene, "-o", "back.htr", "--force"});
      EXPECT_EQ(exported.status, 0) << exported.error;
      EXPECT_THAT(exported.error, IsEmpty());
      const ProgramResult compared = Orvane(
          {"compare", file, "back.htr", "--tolerance-mm", "0.01", "--tolerance-deg", "0.01"});
      EXPECT_EQ(compared.status, 0) << compared.output;
    }
  }
}

// --- What is told ---

TEST_F(ExportSkinsTest, AnUnknownRateIsAWarning) {
  const ProgramResult result = Export(Arm(), {});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: arm.glb: warning: The keys of the file fall into frames of no rate that it "
            "tells. 30 frames a second are taken; --rate takes others. [export-rate-assumed]\n");
  EXPECT_THAT(result.output, HasSubstr("Frames    1 to 31 at 30 frames per second\n"));
}

TEST_F(ExportSkinsTest, TheRateMayBeChosen) {
  const ProgramResult result = Export(Arm(), {"--rate", "120"});
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, HasSubstr("Frames    1 to 121 at 120 frames per second\n"));
}

TEST_F(ExportSkinsTest, ARateThatIsNotWrittenIsAWarning) {
  const ProgramResult result = Export(Arm(), {"--rate", "59.94"});
  EXPECT_EQ(result.error,
            "orvane: arm.glb: warning: The frames are taken at a rate that no motion file of the "
            "plug-in has: \"59.94\". It says 60: a minute lasts 59.94 s there. [export-rate-cut]\n"
            "orvane: arm.glb: note: 2 keys lie between frames. They are not met exactly; --rate "
            "takes other frames. [export-keys-between]\n");
}

TEST_F(ExportSkinsTest, NamesAndAnimationsThatAreNotTakenAreTold) {
  SkinFile file = Arm("Left Arm");
  file.AddKeys(0, "rotation", {0}, {0, 0, 0, 1}, "LINEAR", 1);
  file.document["animations"][0]["name"] = "wave";
  file.document["animations"][1]["name"] = "rest";
  const ProgramResult result = Export(file, {"--rate", "60"});
  EXPECT_EQ(result.error,
            "orvane: arm.glb: note: Another animation of the file moves joints, too: \"rest\". "
            "\"wave\" is taken; --clip NAME takes another. [export-animation-chosen]\n"
            "orvane: arm.glb: note: A joint has a blank in its name, none, or the name of another: "
            "\"Left Arm\". In the motion file a blank is _, and a name that is there twice has a "
            "number. [export-joint-renamed]\n");
  EXPECT_THAT(Read("arm.htr"), HasSubstr("\r\n[Left_Arm]\r\n"));
  EXPECT_THAT(Export(file, {"--clip", "rest"}).output, HasSubstr("Frames    1 alone, at 30"));
  const ProgramResult check = Orvane({"check", "arm.glb", "--for", "export"});
  EXPECT_THAT(check.output, HasSubstr("export-rate-assumed"));
  EXPECT_THAT(check.output, HasSubstr("export-joint-renamed"));
}

TEST_F(ExportSkinsTest, OfSeveralSkeletonsOneIsSelected) {
  SkinFile file = Arm();
  file.AddSkin({file.AddNode("Prop", -1, {{"translation", {1, 0, 0}}})});
  const ProgramResult result = Export(file, {"--rate", "60"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("--select NAME selects a bone"));
  EXPECT_THAT(Export(file, {"--rate", "60", "--select", "Prop"}).output,
              HasSubstr("Segments  1\n"));
  EXPECT_THAT(Orvane({"scene", "arm.glb"}).output, HasSubstr("Prop"));
}

// Of joints along Y, which is a segment's long axis, the axes stay as they are.
TEST_F(ExportSkinsTest, TheRestPoseIsTheBasePosition) {
  SkinFile file = Arm();
  file.BindAt({{0, 1, 0}, {0, 1.25F, 0}});
  EXPECT_EQ(Export(file, {"--rate", "60"}).status, 0);
  const json arm = json::parse(Orvane({"info", "arm.htr", "--json"}).output)["segments"][0];
  EXPECT_NEAR(arm["length"].get<double>(), 250, 1e-3);
  const double place[] = {0, 1000, 0};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(arm["base_translation"][i].get<double>(), place[i], 1e-3);
    EXPECT_NEAR(arm["base_rotation_rad"][i].get<double>(), 0, 1e-5);
  }
}

// --- What is refused ---

TEST_F(ExportSkinsTest, ScaledJointsAreRefusedByTheirNames) {
  SkinFile file = Arm();
  file.document["nodes"][1]["scale"] = {1, 3, 1};
  const ProgramResult result = Export(file, {"--rate", "60"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(
      result.error,
      "orvane: arm.glb: The joint \"Hand\" is scaled unevenly, sheared or mirrored; a motion "
      "file holds turns and places of bones, and none of that. Take it out where the file was "
      "made.\n");
  EXPECT_FALSE(Exists("arm.htr"));
}

TEST_F(ExportSkinsTest, FlagsForOtherProgramsAreOfNoUseForOurOwnScenes) {
  Write("in.htr", test::SmallMotion());
  EXPECT_EQ(Orvane({"import", "in.htr", "-o", "scene.glb", "--quiet"}).status, 0);
  const ProgramResult result =
      Orvane({"export", "scene.glb", "-o", "out.htr", "--select", "Hips", "--rate", "30"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, HasSubstr("--rate: is for files of other programs: scene.glb keeps a "
                                      "scene, whose keys are in frames"));
}

TEST_F(ExportSkinsTest, RatesOutsideTheHostsAreRefused) {
  for (const char* rate : {"0", "4801", "-3", "60x", "x", "1e3"}) {
    EXPECT_EQ(Export(Arm(), {std::string("--rate=") + rate}).status, 2) << rate;
  }
}

}  // namespace
