#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::SmallMotion;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class SceneTest : public test::OrvaneTest {
 protected:
  SceneTest() { Write("walk.htr", SmallMotion()); }

  void Import(const std::vector<std::string>& flags) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "--quiet"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, IsEmpty());
  }

  json Scene(const std::string& file) const {
    const ProgramResult result = Orvane({"scene", file, "--json"});
    EXPECT_EQ(result.status, 0) << result.error;
    return json::parse(result.output);
  }

  static json NodeNamed(const json& scene, const std::string& name) {
    for (const json& node : scene["nodes"]) {
      if (node["name"] == name) return node;
    }
    ADD_FAILURE() << "no node " << name;
    return {};
  }

  static std::vector<int> Ticks(const json& controller) {
    std::vector<int> ticks;
    for (const json& key : controller["keys"]) ticks.push_back(key[0]);
    return ticks;
  }
};

// --- What a scene file holds ---

TEST_F(SceneTest, ThePageShowsTheTree) {
  Import({"-o", "walk.glb", "--system-unit", "cm", "--tcb"});
  const ProgramResult result = Orvane({"scene", "walk.glb"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_EQ(result.output,
            "walk.glb\n"
            "  Nodes       3\n"
            "  Unit        10 mm\n"
            "  Frame rate  60 frames per second, 80 ticks each\n"
            "  Range       ticks 80 to 240\n"
            "  Time        tick 0\n"
            "  Suspended   animate mode 0 times, set-key mode 0 times\n"
            "  Recording   walk.htr, in mm, from frame 1 on; viewers are shown 60 frames per "
            "second\n"
            "\n"
            "Nodes\n"
            "  walk (Dummy, euler)\n"
            "    Hips (Bone, tcb; keys: 3 position, 3 rotation)\n"
            "      Spine (Bone, tcb; keys: 3 position, 3 rotation)\n");
}

TEST_F(SceneTest, TellsWhatWasRecordedAndWhatWasNot) {
  test::TrcText text{.markers = {"a", "b"},
                     .frames = {{"1\t2\t3", ""}, {"1\t2\t3", ""}, {"", "1\t2\t3"}}};
  text.data_rate = "59.94";
  text.units = "cm";
  text.first_frame = 185;
  Write("cloud.trc", text.Text());
  ASSERT_EQ(Orvane({"import", "cloud.trc", "-o", "cloud.glb", "--up", "z", "--quiet"}).status, 0);
  const std::string page = Orvane({"scene", "cloud.glb"}).output;
  EXPECT_THAT(page, HasSubstr("  Recording   cloud.trc, in cm, turned to Y up, from frame 185 on; "
                              "viewers are shown 59.94 (2997/50) frames per second\n"));
  EXPECT_THAT(page, HasSubstr("  a (Sphere, euler; keys: 3 position; 1 gap)\n"));
  const json scene = Scene("cloud.glb");
  EXPECT_EQ(scene["recording"], json::parse(R"({"rate": [2997, 50], "first_frame": 185,
      "unit": "cm", "source": "cloud.trc", "turned_up": true})"));
  EXPECT_EQ(NodeNamed(scene, "b")["measured"],
            json::parse(R"({"made_by_import": true, "gap_manner": "hide",
                            "gaps": [[14985, 15066]]})"));
  Import({"-o", "walk.glb", "--time", "host"});
  EXPECT_EQ(Scene("walk.glb")["recording"]["rate"], nullptr);
  EXPECT_EQ(NodeNamed(Scene("walk.glb"), "Hips")["measured"], nullptr);
  EXPECT_THAT(Orvane({"scene", "walk.glb"}).output,
              HasSubstr("viewers are shown the host's time\n"));
}

TEST_F(SceneTest, JsonHoldsTheScene) {
  Import({"-o", "walk.gltf"});
  const json scene = Scene("walk.gltf");
  EXPECT_EQ(scene["version"], 1);
  EXPECT_EQ(scene["file"], "walk.gltf");
  EXPECT_EQ(scene["millimeters_per_unit"], 1);
  EXPECT_EQ(scene["frame_rate"], 60);
  EXPECT_EQ(scene["ticks_per_frame"], 80);
  EXPECT_EQ(scene["range"], json({80, 240}));
  EXPECT_EQ(scene["time"], 0);
  EXPECT_EQ(scene["selection"], json::array());
  for (const char* mode : {"animate_mode", "set_key_mode"}) {
    EXPECT_EQ(scene[mode], json({{"on", false}, {"suspend_count", 0}, {"unmatched_resumes", 0}}));
  }
}

TEST_F(SceneTest, JsonHoldsEveryNode) {
  Import({"-o", "walk.glb", "--end-effectors"});
  const json scene = Scene("walk.glb");
  ASSERT_THAT(scene["nodes"], SizeIs(4));
  EXPECT_TRUE(NodeNamed(scene, "walk")["parent"].is_null());
  const json hips = NodeNamed(scene, "Hips");
  EXPECT_EQ(hips["parent"], 0);
  EXPECT_EQ(hips["object"], "Bone");
  EXPECT_EQ(hips["super_class"], 16);
  EXPECT_EQ(hips["class"], json({0x28BF6E8D, 0x2ECCA840}));
  EXPECT_THAT(hips["parameters"], SizeIs(4));
  EXPECT_EQ(hips["parameters"][3], 100);
  EXPECT_FALSE(hips["user_properties"].empty());
  EXPECT_TRUE(hips["color"].is_number_integer());
  EXPECT_EQ(hips["position"]["kind"], "linear");
  EXPECT_THAT(hips["position"]["value"], SizeIs(3));
  EXPECT_EQ(hips["rotation"]["kind"], "euler");
  EXPECT_EQ(hips["rotation"]["super_class"], 0x900C);
  EXPECT_THAT(hips["rotation"]["value"], SizeIs(4));
  EXPECT_THAT(Ticks(hips["rotation"]), ElementsAre(80, 160, 240));
  EXPECT_THAT(hips["rotation"]["keys"][0], SizeIs(5));
  EXPECT_THAT(hips["scale"]["value"], ElementsAre(1, 1, 1));
}

TEST_F(SceneTest, OtherFilesAreRefused) {
  const ProgramResult motion = Orvane({"scene", "walk.htr"});
  EXPECT_EQ(motion.status, 1);
  EXPECT_EQ(motion.error,
            "orvane: walk.htr: The file is an HTR file, not an orvane scene\n"
            "  \"orvane import\" makes a scene of it.\n");
  for (const std::vector<std::string>& others :
       {std::vector<std::string>{"export", "walk.htr", "-o", "out.htr"},
        {"import", "walk.htr", "-o", "out.glb", "--into", "walk.htr"},
        {"check", "--for", "export", "walk.htr"}}) {
    EXPECT_EQ(Orvane(others).error, motion.error) << others.front();
  }
  Write("other.gltf", "{\"asset\": {\"version\": \"2.0\"}}");
  const ProgramResult other = Orvane({"scene", "other.gltf", "--json"});
  EXPECT_EQ(other.status, 1);
  EXPECT_EQ(other.error,
            "orvane: other.gltf: The file was not saved by this program, or another has saved it "
            "since: the extension ORVANE_scene is missing.\n");
  EXPECT_THAT(other.output, IsEmpty());
}

TEST_F(SceneTest, AFileThatIsMissingIsNamed) {
  const ProgramResult result = Orvane({"scene", "nowhere.glb"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: nowhere.glb: No such file or directory\n");
}

// --- Imports into a scene ---

TEST_F(SceneTest, AMotionIsAppliedToTheSkeletonOfAnEarlierImport) {
  Import({"-o", "walk.glb", "--no-animation"});
  EXPECT_THAT(NodeNamed(Scene("walk.glb"), "Hips")["rotation"]["keys"], IsEmpty());
  Import({"-o", "moved.glb", "--into", "walk.glb", "--apply", "--select", "Hips", "--frame-rate",
          "file"});
  const json scene = Scene("moved.glb");
  EXPECT_THAT(scene["nodes"], SizeIs(3));
  EXPECT_THAT(Ticks(NodeNamed(scene, "Hips")["rotation"]), ElementsAre(80, 160, 240));
  EXPECT_EQ(scene["nodes"][scene["selection"][0].get<std::size_t>()]["name"], "Hips");
}

TEST_F(SceneTest, TheAppliedMotionIsTheCreatedOne) {
  Import({"-o", "walk.glb"});
  Import({"-o", "again.glb", "--into", "walk.glb", "--apply", "--select", "Hips"});
  json scene = Scene("again.glb");
  EXPECT_EQ(scene["nodes"].dump(), Scene("walk.glb")["nodes"].dump());
}

TEST_F(SceneTest, TheSelectionOfTheSceneStaysWithoutNames) {
  Import({"-o", "walk.glb"});
  Import({"-o", "selected.glb", "--into", "walk.glb", "--apply", "--select", "Hips"});
  Import({"-o", "again.glb", "--into", "selected.glb", "--apply"});
  EXPECT_EQ(Scene("again.glb")["selection"], Scene("selected.glb")["selection"]);
}

TEST_F(SceneTest, TheFrameRateOfTheSceneIsKeptUnlessAsked) {
  Import({"-o", "scene.glb", "--frame-rate", "keep"});
  EXPECT_EQ(
      test::CodesIn(Orvane({"import", "walk.htr", "-o", "kept.glb", "--into", "scene.glb"}).error),
      std::vector<std::string>{"apply-rate-differs"});
  EXPECT_EQ(Scene("kept.glb")["frame_rate"], 30);
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "set.glb", "--into", "scene.glb",
                                       "--frame-rate", "file", "--quiet"});
  EXPECT_EQ(result.error,
            "orvane: walk.htr: warning: The scene's animation range was 2 to 6 at the new frame "
            "rate, and is then 1 to 3. Keys outside the new range stay in the scene, and are "
            "neither played nor exported. [apply-range-shortened]\n");
  EXPECT_EQ(Scene("set.glb")["frame_rate"], 60);
}

TEST_F(SceneTest, ASecondSkeletonJoinsTheFirstInTheUnitOfTheScene) {
  Import({"-o", "walk.glb", "--system-unit", "cm"});
  Import({"-o", "walk.glb", "--into", "walk.glb", "--force"});
  const json scene = Scene("walk.glb");
  EXPECT_THAT(scene["nodes"], SizeIs(6));
  EXPECT_EQ(scene["millimeters_per_unit"], 10);
}

TEST_F(SceneTest, TheUnitOfTheSceneCannotBeChanged) {
  const ProgramResult result =
      Orvane({"import", "walk.htr", "-o", "a.glb", "--into", "walk.glb", "--system-unit", "cm"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, HasSubstr("--system-unit"));
}

TEST_F(SceneTest, NothingIsWrittenWhenTheSceneIsDamaged) {
  Import({"-o", "walk.glb"});
  const std::string bytes = Read("walk.glb");
  Write("cut.glb", bytes.substr(0, bytes.size() / 2));
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "out.glb", "--into", "cut.glb"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "orvane: cut.glb: The file is damaged or cut short.\n");
  EXPECT_FALSE(Exists("out.glb"));
}

}  // namespace
