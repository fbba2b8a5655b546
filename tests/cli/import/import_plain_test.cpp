#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"

// Scenes for viewers alone.

namespace {

using test::ProgramResult;
using test::SceneFile;
using testing::HasSubstr;
using testing::Not;

class ImportPlainTest : public test::OrvaneTest {
 protected:
  ImportPlainTest() {
    Write("walk.htr", test::SmallMotion());
    plain_ = Orvane({"import", "walk.htr", "-o", "plain.glb", "--plain"});
    EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "whole.glb", "--quiet"}).status, 0);
  }

  ProgramResult plain_;
};

TEST_F(ImportPlainTest, ShowTheSameAndKeepNothing) {
  EXPECT_EQ(plain_.status, 0) << plain_.error;
  EXPECT_THAT(plain_.output, HasSubstr(" bytes, for viewers alone)\n"));
  EXPECT_LT(Read("plain.glb").size(), Read("whole.glb").size());
  EXPECT_THAT(Read("whole.glb"), HasSubstr("\"extensionsUsed\""));
  EXPECT_THAT(Read("plain.glb"), Not(HasSubstr("\"extensionsUsed\"")));
  const SceneFile plain(folder_.File("plain.glb"));
  const SceneFile whole(folder_.File("whole.glb"));
  EXPECT_EQ(plain.NodeNames(), whole.NodeNames());
  EXPECT_EQ(plain.KeyTimes("Hips"), whole.KeyTimes("Hips"));
  EXPECT_EQ(plain.Position("Spine", 1), whole.Position("Spine", 1));
}

TEST_F(ImportPlainTest, AreSaidToBeSoByWhoeverAsksForMore) {
  const std::string reason =
      "orvane: plain.glb: The file was written with --plain: it shows a scene to viewers and keeps "
      "none to go on with. Make it again without --plain.\n";
  const ProgramResult result =
      Orvane({"import", "walk.htr", "-o", "more.glb", "--into", "plain.glb"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, reason);
  EXPECT_FALSE(Exists("more.glb"));
}

TEST_F(ImportPlainTest, OfMarkersAreSaidToBeSoByAllVerbs) {
  Write("marks.trc", test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.trc"));
  EXPECT_EQ(Orvane({"import", "marks.trc", "-o", "marks.glb", "--plain", "--quiet"}).status, 0);
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"scene", "marks.glb"}, {"export", "marks.glb", "-o", "back.htr"}}) {
    const ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("The file was written with --plain")) << arguments.front();
  }
}

TEST_F(ImportPlainTest, AreMarkedInTheJson) {
  const auto json = nlohmann::json::parse(
      Orvane({"import", "walk.htr", "-o", "json.glb", "--plain", "--json"}).output);
  EXPECT_EQ(json["plain"], true);
}

}  // namespace
