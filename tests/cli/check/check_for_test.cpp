#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "host/gltf/writer.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/trc_text.h"

namespace {

using test::ProgramResult;
using test::SmallMotion;
using test::TrcText;
using testing::HasSubstr;
using testing::IsEmpty;

class CheckForTest : public test::OrvaneTest {
 protected:
  CheckForTest() {
    Write("gaps.trc", TrcText{.markers = {"Head", "Hand"},
                              .frames = {{"1\t2\t3", "\t\t"}, {"1x5\t2\t3", "1\t2\t3"}}}
                          .Text());
  }
};

TEST_F(CheckForTest, TellsWhatAnActionMakesOfAFile) {
  const ProgramResult imported = Orvane({"check", "--for", "import", "gaps.trc"});
  EXPECT_EQ(imported.status, 1);
  EXPECT_THAT(imported.error, IsEmpty());
  EXPECT_EQ(
      imported.output,
      "gaps.trc: warning: A value is not a number: \"1x5\" (line 8, column 9). 1 is "
      "taken. [trc-number-unreadable]\n"
      "gaps.trc: note: A marker has gaps: \"Hand\" (line 7, column 1). Viewers do not see such a "
      "marker in its gaps; in the host its keys go to the origin. [trc-marker-gaps]\n"
      "gaps.trc: 1 warning, 1 note for import\n");
  const ProgramResult converted = Orvane({"check", "--for", "convert", "gaps.trc"});
  EXPECT_THAT(converted.output, HasSubstr("note: A marker has gaps: \"Hand\" (line 7, column 1). A "
                                          "gap is written as DROPOUT. [trc-marker-gaps]\n"));
  EXPECT_THAT(converted.output, HasSubstr("gaps.trc: 1 warning, 1 note for convert\n"));
}

TEST_F(CheckForTest, ToleratesByTheSeverityForTheAction) {
  EXPECT_EQ(Orvane({"check", "--for", "import", "gaps.trc", "--max-severity", "warning"}).status,
            0);
  Write("clean.trc", TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}}}.Text());
  const ProgramResult result = Orvane({"check", "--for", "convert", "clean.trc"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "clean.trc: clean for convert\n");
}

TEST_F(CheckForTest, WritesTheReportAsJson) {
  const ProgramResult result = Orvane({"check", "--for", "import", "gaps.trc", "--json"});
  const auto json = nlohmann::json::parse(result.output);
  EXPECT_EQ(json["version"], 2);
  const auto& file = json["files"][0];
  EXPECT_EQ(file["file"], "gaps.trc");
  EXPECT_EQ(file["file_type"], "TRC");
  EXPECT_EQ(file["action"], "import");
  EXPECT_EQ(file["warnings"], 1);
  EXPECT_EQ(file["errors"], 0);
  EXPECT_EQ(file["notes"], 1);
  const auto& finding = file["findings"][1];
  EXPECT_EQ(finding["code"], "trc-marker-gaps");
  EXPECT_EQ(finding["severity"], "note");
  EXPECT_EQ(finding["count"], 1);
  EXPECT_EQ(finding["line"], 7);
  EXPECT_EQ(finding["column"], 1);
  EXPECT_EQ(finding["names"], nlohmann::json::array({"Hand"}));
  EXPECT_EQ(finding["cause"], "A marker has gaps");
  EXPECT_EQ(finding["consequence"],
            "Viewers do not see such a marker in its gaps; in the host its keys go to the origin.");
}

TEST_F(CheckForTest, RefusesWhatIsNotDoneWithSuchAFile) {
  Write("walk.htr", SmallMotion());
  const ProgramResult result = Orvane({"check", "--for", "convert", "walk.htr", "gaps.trc"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, HasSubstr("orvane: walk.htr: \"convert\" takes no HTR files\n"));
  EXPECT_THAT(
      result.output,
      HasSubstr("1 of 2 files has warnings for convert, 1 has notes, 1 could not be checked\n"));
  Write("map.mnm", "LFHD\tHead\n");
  EXPECT_THAT(Orvane({"check", "--for", "import", "map.mnm"}).error,
              HasSubstr("orvane: map.mnm: \"import\" takes no MNM files\n"));
}

// --- Of a scene, for an export ---

TEST_F(CheckForTest, OfASceneTellsWhatAnExportTells) {
  host::Scene scene;
  host::Node& hips = test::AddBone(scene, "Hips");
  test::AddBone(scene, "The head", &hips);
  Write("scene.glb", host::gltf::WriteScene(scene, {}).bytes);
  const std::string finding =
      "scene.glb: warning: A bone has a blank in its name, or the name of another: \"The head\". "
      "Such a bone is left out, with all below it. [export-name-refused]\n";
  const ProgramResult checked =
      Orvane({"check", "--for", "export", "scene.glb", "--select", "Hips"});
  EXPECT_EQ(checked.status, 1);
  EXPECT_THAT(checked.error, IsEmpty());
  EXPECT_EQ(checked.output, finding + "scene.glb: 1 warning for export\n");
  EXPECT_THAT(Orvane({"export", "scene.glb", "--select", "Hips", "-o", "out.htr"}).error,
              HasSubstr("orvane: " + finding));
}

TEST_F(CheckForTest, OfASceneWithoutASelectionSaysSo) {
  host::Scene scene;
  test::AddBone(scene, "Hips");
  Write("scene.glb", host::gltf::WriteScene(scene, {}).bytes);
  EXPECT_EQ(Orvane({"check", "--for", "export", "scene.glb"}).output,
            "scene.glb: error: No skeleton of the scene is selected. Nothing is exported; --select "
            "NAME takes a bone, or a node that is the parent of one. [export-root-missing]\n"
            "scene.glb: 1 error for export\n");
  EXPECT_EQ(Orvane({"check", "--for", "export", "scene.glb", "--select", "Pelvis"}).output,
            "scene.glb: error: The scene has no node of the name that --select gives: \"Pelvis\". "
            "Nothing is exported; \"orvane scene\" lists the names. [export-select-unknown]\n"
            "scene.glb: 1 error for export\n");
  EXPECT_EQ(Orvane({"check", "--for", "export", "scene.glb", "--select", "Hisp"}).output,
            "scene.glb: error: The scene has no node of the name that --select gives: \"Hisp\". "
            "Nothing is exported; did you mean \"Hips\"? [export-select-unknown]\n"
            "scene.glb: 1 error for export\n");
}

TEST_F(CheckForTest, OfAFolderChecksTheScenesInIt) {
  host::Scene scene;
  test::AddBone(scene, "Hips");
  Write("scene.glb", host::gltf::WriteScene(scene, {}).bytes);
  const ProgramResult result =
      Orvane({"check", "--for", "export", ".", "--select", "Hips", "--json"});
  EXPECT_EQ(result.status, 0);
  const auto files = nlohmann::json::parse(result.output)["files"];
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files[0]["file_type"], "scene");
  EXPECT_EQ(files[0]["action"], "export");
}

TEST_F(CheckForTest, TakesANodeForAnExportAlone) {
  EXPECT_EQ(Orvane({"check", "gaps.trc", "--select", "Hips"}).status, 2);
  EXPECT_EQ(Orvane({"check", "--for", "export", "gaps.trc", "--as", "trc"}).status, 2);
}

}  // namespace
