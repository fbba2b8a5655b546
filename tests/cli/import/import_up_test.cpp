#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"
#include "tests/support/trc_text.h"

// Files whose heights lie along Z.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::SceneFile;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Flags = std::vector<std::string>;

class ImportUpTest : public test::OrvaneTest {
 protected:
  ImportUpTest() {
    TrcText text{.markers = {"Head", "Hand"},
                 .frames = {{"100\t200\t1700.123456789", "-0\t+3\t900"}, {"100\t-200\t1700", ""}}};
    Write("lab.trc", text.Text());
  }

  ProgramResult Import(Flags flags, const std::string& file = "lab.trc") const {
    flags.insert(flags.begin(), {"import", file, "-o", "lab.glb", "--force"});
    return Orvane(flags);
  }

  json Scene() const { return json::parse(Orvane({"scene", "lab.glb", "--json"}).output); }
};

TEST_F(ImportUpTest, AlongZAreTurnedWhenItIsSaid) {
  const ProgramResult result = Import({"--up", "z", "--size", "1"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(Names(), testing::UnorderedElementsAre("lab.glb", "lab.trc"));
  const json scene = Scene();
  // The host has Z up, as the file has.
  EXPECT_EQ(scene["nodes"][0]["name"], "Head");
  EXPECT_EQ(scene["nodes"][0]["position"]["keys"][0], json({80, 100.0F, 200.0F, 1700.123456789F}));
  EXPECT_EQ(scene["nodes"][0]["position"]["keys"][1], json({160, 100.0F, -200.0F, 1700.0F}));
  EXPECT_EQ(scene["nodes"][1]["position"]["keys"][0], json({80, 0.0F, 3.0F, 900.0F}));
  // Viewers have Y up.
  const auto place = SceneFile(folder_.File("lab.glb")).SeenAt("Head", 1 / 60.0);
  ASSERT_TRUE(place.has_value());
  EXPECT_NEAR((*place)[1], 1.7, 1e-6);
  EXPECT_NEAR((*place)[2], 0.2, 1e-6);
  EXPECT_FALSE(SceneFile(folder_.File("lab.glb")).SeenAt("Hand", 1 / 60.0 + 1e-5).has_value());
}

TEST_F(ImportUpTest, AreAlongYUnasked) {
  for (const Flags& flags : {Flags{}, Flags{"--up", "y"}}) {
    ASSERT_EQ(Import(flags).status, 0);
    EXPECT_EQ(Scene()["nodes"][0]["position"]["keys"][1], json({160, 100.0F, -1700.0F, -200.0F}));
  }
}

TEST_F(ImportUpTest, NamesTheUsersFileInAllThatIsTold) {
  TrcText text{.markers = {"Head"}, .frames = {{"1\t2\tx"}}};
  Write("odd.trc", text.Text());
  const ProgramResult odd = Import({"--up", "z"}, "odd.trc");
  EXPECT_THAT(odd.error, HasSubstr("orvane: odd.trc: warning: A value is not a number: \"x\" (line "
                                   "7, column 13)."));
  EXPECT_THAT(odd.output, HasSubstr("Imported odd.trc\n"));
  EXPECT_EQ(Import({"--up", "z", "--range", "1:9"}).error,
            Import({"--up", "y", "--range", "1:9"}).error);
}

TEST_F(ImportUpTest, OfMotionFilesAreRefusedWithTheReason) {
  Write("walk.htr", test::SmallMotion());
  const ProgramResult result = Import({"--up", "z"}, "walk.htr");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: --up z: only marker files are turned: the bones of a motion file have axes of "
            "their own, which would turn with it\n  Turn the skeleton in the scene.\n");
}

TEST_F(ImportUpTest, OfLinesThatAreReadInPiecesCannotBeTurned) {
  TrcText text{.markers = {"Head"}, .frames = {{"1\t2\t" + std::string(10'300, '3')}}};
  Write("long.trc", text.Text());
  const ProgramResult result = Import({"--up", "z"}, "long.trc");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              HasSubstr("orvane: long.trc: --up z cannot turn it: it has lines that are read in "
                        "pieces\n"));
  EXPECT_FALSE(Exists("lab.glb"));
}

}  // namespace
