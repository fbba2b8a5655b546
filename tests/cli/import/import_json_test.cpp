#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::ElementsAre;
using testing::IsEmpty;

class ImportJsonTest : public test::OrvaneTest {
 protected:
  ImportJsonTest() { Write("walk.htr", SmallMotion()); }

  json Import(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "walk.glb", "--json"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 0) << result.error;
    return json::parse(result.output);
  }
};

TEST_F(ImportJsonTest, HoldsWhatTheSummarySays) {
  const json document = Import();
  EXPECT_EQ(document, json({{"version", 2},
                            {"file", "walk.htr"},
                            {"nodes", 3},
                            {"keys_set", 12},
                            {"keys_in_scene", 12},
                            {"key_frames", {1, 3}},
                            {"frames", {1, 3}},
                            {"frame_rate", 60},
                            {"samples", nullptr},
                            {"chosen_size_mm", nullptr},
                            {"scene", "walk.glb"},
                            {"delivered", true},
                            {"plain", false},
                            {"bytes", Read("walk.glb").size()},
                            {"applied", nullptr},
                            {"findings", json::array()},
                            {"warnings", json::array()}}));
}

TEST_F(ImportJsonTest, HoldsFindingsAndMessagesOfThePlugin) {
  Write("walk.htr", Replaced(SmallMotion(), "ScaleFactor 1", "ScaleFactor 2"));
  const json document = Import();
  ASSERT_EQ(document["findings"].size(), 1U);
  const json finding = document["findings"][0];
  EXPECT_EQ(finding["code"], "htr-scale-factor");
  EXPECT_EQ(finding["severity"], "warning");
  EXPECT_EQ(document["warnings"],
            json({"ScaleFactor is not 1.0, this plugin does not support the ScaleFactor header "
                  "variable."}));
}

TEST_F(ImportJsonTest, TellsHowAMotionWasApplied) {
  ASSERT_EQ(Import()["nodes"], 3);
  Write("walk.htr", Replaced(SmallMotion(), "250.5", "300.5"));
  const json applied =
      Import({"--into", "walk.glb", "--force", "--apply", "--select", "Hips"})["applied"];
  EXPECT_EQ(applied["matched"], json::parse(R"([["Hips", "Hips"], ["Spine", "Spine"]])"));
  EXPECT_THAT(applied["file_only"], IsEmpty());
  EXPECT_THAT(applied["scene_only"], IsEmpty());
  ASSERT_EQ(applied["bones_that_differ"].size(), 1U);
  EXPECT_EQ(applied["bones_that_differ"][0],
            json({{"name", "Spine"}, {"millimeters", 50.0}, {"degrees", 0.0}}));
}

TEST_F(ImportJsonTest, OfADryRunTellsThatNothingWasWritten) {
  const json document = Import({"--dry-run"});
  EXPECT_EQ(document["delivered"], false);
  EXPECT_EQ(document["bytes"], nullptr);
  EXPECT_EQ(document["keys_set"], 12);
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

TEST_F(ImportJsonTest, OfSceneWithoutKeysHasNoFramesOfThem) {
  EXPECT_EQ(Import({"--no-animation"})["key_frames"], nullptr);
}

TEST_F(ImportJsonTest, ARefusalLeavesTheOutputEmpty) {
  const ProgramResult result =
      Orvane({"import", "walk.htr", "-o", "walk.glb", "--json", "--scale", "0"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, IsEmpty());
}

}  // namespace
