#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// Some frames of a file, cut out before it is imported.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::ReadFile;
using test::TrcText;
using testing::HasSubstr;

using Flags = std::vector<std::string>;

class ImportCutTest : public test::OrvaneTest {
 protected:
  ImportCutTest() {
    text_.frames = {{"1\t2\t3"}, {"4\t5\t6.125"}, {""}, {"10\t11\t12"}};
    Write("take.trc", text_.Text());
    Write("walk.htr", ReadFile(ORVANE_SOURCE_DIR "/examples/walk.htr"));
  }

  ProgramResult Import(const std::string& file, Flags flags) const {
    flags.insert(flags.begin(), {"import", file, "-o", "out.glb", "--force"});
    return Orvane(flags);
  }

  json Scene() const { return json::parse(Orvane({"scene", "out.glb", "--json"}).output); }

  // The frames that the keys of the first node with any are in.
  std::vector<int> KeyedFrames() const {
    const json scene = Scene();
    std::vector<int> frames;
    for (const json& node : scene["nodes"]) {
      for (const json& key : node["position"]["keys"]) {
        frames.push_back(key[0].get<int>() / scene["ticks_per_frame"].get<int>());
      }
      if (!frames.empty()) break;
    }
    return frames;
  }

  TrcText text_{.markers = {"Head"}, .first_frame = 228};
};

TEST_F(ImportCutTest, KeysTheFramesOfAMarkerFileByTheirNumbers) {
  const ProgramResult result = Import("take.trc", {"--cut", "229:230"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(Names(), testing::UnorderedElementsAre("out.glb", "take.trc", "walk.htr"));
  EXPECT_THAT(result.output, HasSubstr("Imported take.trc\n"));
  EXPECT_EQ(KeyedFrames(), (std::vector<int>{229, 230}));
  EXPECT_EQ(Scene()["nodes"][0]["position"]["keys"][0], json({229 * 80, 4.0F, -6.125F, 5.0F}));
  EXPECT_EQ(Scene()["recording"]["first_frame"], 229);
  EXPECT_EQ(Scene()["recording"]["source"], "take.trc");
}

TEST_F(ImportCutTest, KeysTheFramesOfAMotionFileByTheirNumbers) {
  const ProgramResult result = Import("walk.htr", {"--cut", "50:60"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(KeyedFrames(), (std::vector<int>{50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60}));
  EXPECT_THAT(result.output, HasSubstr("Frames  50 to 60 at 60 frames per second\n"));
}

TEST_F(ImportCutTest, TakesFramesThatTheHeaderDoesNotAnnounce) {
  text_.frame_count = 1;
  Write("take.trc", text_.Text());
  EXPECT_EQ(Import("take.trc", {"--cut", "230:231"}).status, 0);
  EXPECT_EQ(KeyedFrames(), (std::vector<int>{230, 231}));
}

TEST_F(ImportCutTest, OfFramesThatTheFileHasNotIsRefusedWithThoseThatItHas) {
  for (const Flags& more : {Flags{}, Flags{"--no-report"}, Flags{"--dry-run"}}) {
    Flags flags = {"--cut", "1:4"};
    flags.insert(flags.end(), more.begin(), more.end());
    const ProgramResult result = Import("take.trc", flags);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error,
                HasSubstr("orvane: take.trc: --cut asks for the frames 1 to 4, and the file has "
                          "228 to 231 [cut-range-outside]\n  --cut 228:231 takes all of it.\n"));
    EXPECT_FALSE(Exists("out.glb"));
  }
  EXPECT_EQ(Import("take.trc", {"--cut", "1:4", "--report", "found.json"}).status, 1);
  EXPECT_THAT(ReadText("found.json"), HasSubstr("\"cut-range-outside\""));
}

TEST_F(ImportCutTest, OfFramesThatTheFileHasInPartIsAWarning) {
  const ProgramResult result = Import("take.trc", {"--cut", "230:240"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error,
              HasSubstr("orvane: take.trc: warning: --cut asks for 11 frames, and the file lacks 9 "
                        "of them. The frames 230 to 231 are taken. [cut-range-partly]\n"));
  EXPECT_EQ(KeyedFrames(), (std::vector<int>{230, 231}));
  EXPECT_EQ(Import("take.trc", {"--cut", "230:240", "--strict"}).status, 1);
}

TEST_F(ImportCutTest, NamesPlacesInTheUsersFile) {
  text_.frames[1] = {"4\t5\tx"};
  Write("take.trc", text_.Text());
  EXPECT_THAT(Import("take.trc", {"--cut", "229:229"}).error,
              HasSubstr("orvane: take.trc: warning: A value is not a number: \"x\" (line 8, "
                        "column 15)."));
}

TEST_F(ImportCutTest, WorksOnFilesWhoseHeightsLieAlongZ) {
  EXPECT_EQ(Import("take.trc", {"--cut", "229:229", "--up", "z"}).status, 0);
  EXPECT_EQ(Scene()["nodes"][0]["position"]["keys"],
            json::array({json({229 * 80, 4.0F, 5.0F, 6.125F})}));
}

TEST_F(ImportCutTest, GoesToNodesThatAreThere) {
  ASSERT_EQ(Orvane({"import", "take.trc", "-o", "scene.glb", "--cut", "228:228"}).status, 0);
  const ProgramResult result = Import(
      "take.trc", {"--cut", "230:231", "--apply", "--into", "scene.glb", "--select", "Head"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(KeyedFrames(), (std::vector<int>{228, 230, 231}));
}

TEST_F(ImportCutTest, OfAFileThatHoldsNothingSaysTheSameAsTheWhole) {
  Write("bare.trc", TrcText{.markers = {}, .marker_count = 1}.Text() + "1\t0\n2\t0\n");
  Write("bare.htr", "[Header]\nFileType htr\nNumSegments 0\nNumFrames 2\n[EndOfFile]\n");
  for (const std::string file : {"bare.trc", "bare.htr"}) {
    for (const Flags& more : {Flags{}, Flags{"--no-report"}}) {
      const ProgramResult whole = Import(file, more);
      Flags flags = {"--cut", "1:1"};
      flags.insert(flags.end(), more.begin(), more.end());
      const ProgramResult cut = Import(file, flags);
      EXPECT_EQ(cut.error, whole.error);
      EXPECT_EQ(cut.status, 1);
    }
  }
}

TEST_F(ImportCutTest, TakesTwoNumbersAndNoRange) {
  for (const std::string range :
       {"5", ":", "5:a", "a:5", "a:b", "1:2:3", "1.5:2", "9:8", "1:9999999999"}) {
    const ProgramResult result = Import("take.trc", {"--cut", range});
    EXPECT_EQ(result.status, 2) << range;
    EXPECT_THAT(result.error, HasSubstr("--cut")) << range;
  }
  const ProgramResult both = Import("take.trc", {"--cut", "228:229", "--range", "228:229"});
  EXPECT_EQ(both.status, 2);
  EXPECT_THAT(both.error, HasSubstr("--range"));
}

}  // namespace
