// What is said of a skeleton that a motion file cannot hold.

#include <nlohmann/json.hpp>

#include "host/gltf/writer.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/bone_nodes.h"

namespace {

using nlohmann::json;
using test::AddBone;
using test::AddDummy;
using test::ProgramResult;
using testing::HasSubstr;
using testing::IsEmpty;

// Hips over Spine over Head.
class ExportReportTest : public test::OrvaneTest {
 protected:
  ProgramResult Export(const std::vector<std::string>& flags = {}) {
    Write("scene.glb", host::gltf::WriteScene(scene_, {}).bytes);
    std::vector<std::string> arguments = {"export",  "scene.glb", "--select", "Hips",   "-o",
                                          "out.htr", "--range",   "0:2",      "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  // The codes that the JSON of an export has.
  std::vector<std::string> Codes(const std::vector<std::string>& flags = {}) {
    std::vector<std::string> all = flags;
    all.emplace_back("--json");
    std::vector<std::string> codes;
    const json document = json::parse(Export(all).output);
    for (const json& finding : document["findings"]) codes.push_back(finding["code"]);
    return codes;
  }

  static void Scale(host::Node& node, const Point3& scale) {
    node.Transform()->Scale().SetConstant(scale);
  }

  // By 45 degrees about the Z axis.
  static void Turn(host::Node& node) {
    node.Transform()->Rotation().SetConstant(Quat(0.0F, 0.0F, 0.38268343F, 0.92387953F));
  }

  host::Scene scene_;
  host::Node& hips_ = AddBone(scene_, "Hips");
  host::Node& spine_ = AddBone(scene_, "Spine", &hips_);
  host::Node& head_ = AddBone(scene_, "Head", &spine_);
};

TEST_F(ExportReportTest, ASkeletonThatFitsIsNotMentioned) {
  const ProgramResult result = Export({"--strict"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
}

TEST_F(ExportReportTest, AScaleThatChangesIsNamed) {
  spine_.Transform()->Scale().SetKey(0, Point3(1, 1, 1));
  spine_.Transform()->Scale().SetKey(320, Point3(2, 2, 2));
  EXPECT_EQ(Export().error,
            "orvane: scene.glb: warning: The scale of a bone changes: \"Spine\". The file tells it "
            "along X alone, and no import brings it back; what hangs from the bone stands as along "
            "X. [export-scale-keyed]\n");
  spine_.Transform()->Scale().SetKey(320, Point3(1, 1, 1));
  EXPECT_THAT(Export().error, IsEmpty());
}

TEST_F(ExportReportTest, AnEvenScaleFits) {
  Scale(spine_, Point3(2, 2, 2));
  EXPECT_THAT(Codes(), IsEmpty());
}

TEST_F(ExportReportTest, AnUnevenScaleIsNamedAndWhatItShears) {
  Scale(spine_, Point3(2, 1, 1));
  EXPECT_THAT(Codes(), testing::ElementsAre("export-scale-uneven"));
  Turn(head_);
  EXPECT_THAT(Codes(), testing::ElementsAre("export-scale-uneven", "export-shear"));
}

TEST_F(ExportReportTest, AShearInOneFrameIsFound) {
  Scale(spine_, Point3(2, 1, 1));
  head_.Transform()->Rotation().SetKey(0, Quat());
  head_.Transform()->Rotation().SetKey(320, Quat(0.0F, 0.0F, 0.38268343F, 0.92387953F));
  EXPECT_THAT(Codes(), testing::Contains("export-shear"));
  EXPECT_THAT(Codes({"--no-animation"}), testing::Not(testing::Contains("export-shear")));
}

TEST_F(ExportReportTest, NodesAboveTheRootCountWhenTheirTransformsAreKept) {
  host::Node& yard = AddDummy(scene_, "Yard");
  yard.AttachChild(&hips_, false);
  Scale(yard, Point3(1, 2, 1));
  Turn(hips_);
  EXPECT_THAT(Codes(), testing::ElementsAre("export-shear"));
  EXPECT_THAT(Codes({"--no-parent-transforms"}), IsEmpty());
}

TEST_F(ExportReportTest, HelpersAndEffectorsThatAreSkippedAreNamed) {
  AddDummy(scene_, "Prop", &head_);
  host::Node& pulley = AddDummy(scene_, "Pulley", &head_);
  AddBone(scene_, "Cable", &pulley);
  AddBone(scene_, "Head_Effector", &head_);
  EXPECT_EQ(Export().error,
            "orvane: scene.glb: warning: A bone hangs from a node that is no bone: \"Cable\". Such "
            "a bone is left out. [export-below-helper]\n"
            "orvane: scene.glb: note: A node of the skeleton is no bone: \"Prop\". Such a node is "
            "left out. [export-helper-skipped]\n"
            "orvane: scene.glb: note: An effector ends a chain: \"Head_Effector\". Such an "
            "effector is left out; the bone before it has its length. [export-effector]\n");
}

TEST_F(ExportReportTest, ANameThatTheFileReadsOtherwiseIsNamedBeforeTheRefusal) {
  spine_.SetName("GLOBAL");
  const ProgramResult result = Export();
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, testing::StartsWith(
                                "orvane: scene.glb: error: A bone has a name that means something "
                                "else in a motion file: \"GLOBAL\". The file would not read "
                                "back, and is refused; rename the bone. [export-name-changed]\n"));
}

// --- Frames ---

// The animation range is exported, whatever it was set for.
TEST_F(ExportReportTest, FramesWithoutKeysOfTheSkeletonAreANote) {
  head_.Transform()->Position().SetKey(0, Point3(1, 2, 3));
  head_.Transform()->Position().SetKey(160, Point3(1, 2, 4));
  AddDummy(scene_, "Prop").Transform()->Position().SetKey(16000, Point3(1, 2, 3));
  EXPECT_EQ(Export().error,
            "orvane: scene.glb: note: The frames 0 to 2 are exported, and the keys of the skeleton "
            "are in 0 to 1. In the others it stands still; --range FROM:TO leaves them out. "
            "[export-frames-unkeyed]\n");
  head_.Transform()->Position().SetKey(320, Point3(1, 2, 5));
  EXPECT_THAT(Codes(), IsEmpty());
  EXPECT_THAT(Codes({"--no-animation"}), IsEmpty());
}

TEST_F(ExportReportTest, KeysAboveTheSkeletonMoveIt) {
  host::Node& yard = AddDummy(scene_, "Yard");
  yard.AttachChild(&hips_, false);
  yard.Transform()->Position().SetKey(0, Point3(1, 2, 3));
  yard.Transform()->Position().SetKey(320, Point3(1, 2, 4));
  EXPECT_THAT(Codes(), IsEmpty());
}

// --- Flags ---

TEST_F(ExportReportTest, StrictRefusesUnlessItIsAllowed) {
  head_.SetName("The head");
  const ProgramResult refused = Export({"--strict"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.error,
            "orvane: scene.glb: warning: A bone has a blank in its name, or the name of another: "
            "\"The head\". Such a bone is left out, with all below it. [export-name-refused]\n"
            "orvane: --strict: nothing was written because of export-name-refused\n");
  EXPECT_FALSE(Exists("out.htr"));
  EXPECT_EQ(Export({"--strict", "--allow", "export-name-refused"}).status, 0);
}

TEST_F(ExportReportTest, TheReportFileHoldsIt) {
  AddDummy(scene_, "Prop", &head_);
  EXPECT_EQ(Export({"--report", "report.json"}).status, 0);
  const json report = json::parse(Read("report.json"))["files"][0];
  EXPECT_EQ(report["file"], "scene.glb");
  EXPECT_EQ(report["action"], "export");
  EXPECT_EQ(report["findings"][0]["code"], "export-helper-skipped");
}

TEST_F(ExportReportTest, TheReportReplacesNeitherSceneNorMotion) {
  EXPECT_EQ(Export({"--report", "scene.glb"}).status, 2);
  EXPECT_EQ(Export({"--report", "out.htr"}).status, 2);
}

TEST_F(ExportReportTest, WithoutAReportNothingIsSaid) {
  Scale(spine_, Point3(2, 1, 1));
  const ProgramResult result = Export({"--no-report"});
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, HasSubstr("  Report    none: --no-report\n"));
}

TEST_F(ExportReportTest, QuietLeavesNotesOut) {
  AddDummy(scene_, "Prop", &head_);
  EXPECT_THAT(Export({"--quiet"}).error, IsEmpty());
}

// --- JSON ---

TEST_F(ExportReportTest, JsonHoldsWhatTheSummarySays) {
  const ProgramResult result = Export({"--json"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(json::parse(result.output), json({{"version", 2},
                                              {"scene", "scene.glb"},
                                              {"segments", 3},
                                              {"frames", {0, 2}},
                                              {"frame_rate", 30},
                                              {"file", "out.htr"},
                                              {"bytes", Read("out.htr").size()},
                                              {"findings", json::array()},
                                              {"warnings", json::array()}}));
}

TEST_F(ExportReportTest, JsonHoldsTheMessagesOfThePlugin) {
  head_.SetName("The head");
  EXPECT_EQ(json::parse(Export({"--json"}).output)["warnings"],
            json({"There are multiple identical names or spaces in a bone name."}));
}

}  // namespace
