#include <nlohmann/json.hpp>
#include <set>

#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"
#include "tests/support/trc_text.h"

// What viewers see of samples that a marker file does not have.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::SceneFile;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

using Flags = std::vector<std::string>;
using Markers = std::set<std::string>;  // by their names

constexpr double kRate = 60.0;

// In the frames 1 to 6 "a" is seen in all, "b" in 3, 4 and 6, "c" in 1 and 2, "d" in none.
TrcText Cloud() {
  TrcText text{.markers = {"a", "b", "c", "d"}};
  for (int frame = 1; frame <= 6; ++frame) {
    const std::string place = std::to_string(1000 * frame) + "\t2000\t3000";
    const bool has_b = frame == 3 || frame == 4 || frame == 6;
    text.frames.push_back({place, has_b ? place : "", frame < 3 ? place : "", ""});
  }
  return text;
}

class ImportGapsTest : public test::OrvaneTest {
 protected:
  ImportGapsTest() { Write("cloud.trc", Cloud().Text()); }

  ProgramResult Import(const std::string& scene, Flags flags = {},
                       const std::string& file = "cloud.trc") const {
    flags.insert(flags.begin(), {"import", file, "-o", scene, "--force"});
    return Orvane(flags);
  }

  SceneFile Scene(const std::string& name) const { return SceneFile(folder_.File(name)); }

  // Those of `names` that viewers see in that frame of the file.
  static Markers Seen(const SceneFile& scene, const Markers& names, int frame) {
    Markers seen;
    for (const std::string& name : names) {
      if (scene.SeenAt(name, (frame - 1) / kRate + 1e-5)) seen.insert(name);
    }
    return seen;
  }

  static void ExpectNothingAtOrigin(const SceneFile& scene, const Markers& names, int frames) {
    for (int step = 0; step <= 4 * frames; ++step) {
      for (const std::string& name : names) {
        const auto place = scene.SeenAt(name, step / (4 * kRate));
        if (place) {
          EXPECT_GT(std::abs((*place)[0]) + std::abs((*place)[1]), 1e-3) << name << ' ' << step;
        }
      }
    }
  }
};

const Markers kAll = {"a", "b", "c", "d"};

TEST_F(ImportGapsTest, AreHiddenAndCounted) {
  const ProgramResult result = Import("cloud.glb");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.error,
      "orvane: cloud.trc: note: A marker has no position in any frame: \"d\" (line 4, column "
      "25). Viewers never see such a marker; in the host its keys are at the origin. "
      "[trc-marker-never-seen]\n"
      "orvane: cloud.trc: note: 2 markers have gaps: \"b\", \"c\" (line 7, column 1). Viewers "
      "do not see such a marker in its gaps; in the host its keys go to the origin. "
      "[trc-marker-gaps]\n");
  EXPECT_THAT(result.output, HasSubstr("\n  Gaps    13 of 24 samples missing: hidden\n"));
  const SceneFile scene = Scene("cloud.glb");
  const std::vector<Markers> seen = {{"a", "c"}, {"a", "c"}, {"a", "b"},
                                     {"a", "b"}, {"a"},      {"a", "b"}};
  for (int frame = 1; frame <= 6; ++frame) {
    EXPECT_EQ(Seen(scene, kAll, frame), seen[static_cast<std::size_t>(frame - 1)]) << frame;
  }
  ExpectNothingAtOrigin(scene, kAll, 6);
}

TEST_F(ImportGapsTest, AreHeldAtTheLastPlaceWhereThatIsWished) {
  const ProgramResult result = Import("cloud.glb", {"--gaps", "hold"});
  EXPECT_THAT(result.error, HasSubstr("warning: 2 markers have gaps"));
  EXPECT_THAT(result.output, HasSubstr("\n  Gaps    13 of 24 samples missing: held\n"));
  const SceneFile scene = Scene("cloud.glb");
  EXPECT_EQ(Seen(scene, kAll, 5), (Markers{"a", "b", "c"}));
  EXPECT_THAT(*scene.SeenAt("b", 4 / kRate), ElementsAre(4.0, 2.0, 3.0));
  EXPECT_THAT(*scene.SeenAt("b", 0.0), ElementsAre(3.0, 2.0, 3.0));
  EXPECT_EQ(Import("cloud.glb", {"--gaps", "hold", "--strict"}).status, 1);
  EXPECT_EQ(Import("cloud.glb", {"--strict"}).status, 0);
}

TEST_F(ImportGapsTest, AreAtTheOriginWhereThatIsWished) {
  const ProgramResult result = Import("cloud.glb", {"--gaps", "origin"});
  EXPECT_THAT(result.error, HasSubstr("In its gaps such a marker goes to the origin. ["));
  EXPECT_THAT(result.output, HasSubstr("\n  Gaps    13 of 24 samples missing: at the origin\n"));
  EXPECT_THAT(*Scene("cloud.glb").SeenAt("b", 0.0), ElementsAre(0.0, 0.0, 0.0));
}

TEST_F(ImportGapsTest, AreThoseOfTheFramesThatAreKeyed) {
  EXPECT_THAT(Import("cloud.glb", {"--range", "3:4"}).output,
              HasSubstr("\n  Gaps    4 of 8 samples missing: hidden\n"));
  EXPECT_THAT(Import("cloud.glb", {"--range", "1:1"}).output,
              HasSubstr("\n  Gaps    2 of 4 samples missing: hidden\n"));
  TrcText text = Cloud();
  text.markers = {"a"};
  text.frames = {{"1\t2\t3"}};
  Write("seen.trc", text.Text());
  EXPECT_THAT(Import("cloud.glb", {}, "seen.trc").output, Not(HasSubstr("Gaps")));
  text.frame_count = 3;
  Write("longer.trc", text.Text());
  EXPECT_THAT(Import("cloud.glb", {}, "longer.trc").output,
              HasSubstr("\n  Gaps    2 of 3 samples missing: hidden\n"));
}

TEST_F(ImportGapsTest, AreKnownToMarkersBelowAGroupAndWithNamesOfOthers) {
  TrcText text = Cloud();
  text.markers = {"TRCCloud", "b", "b001", "d"};
  Write("named.trc", text.Text());
  ASSERT_EQ(Import("named.glb", {"--root-node"}, "named.trc").status, 0);
  const SceneFile scene = Scene("named.glb");
  EXPECT_EQ(Seen(scene, {"b", "b001", "d"}, 1), (Markers{"b001"}));
  EXPECT_EQ(Seen(scene, {"b", "b001", "d"}, 3), (Markers{"b"}));
}

TEST_F(ImportGapsTest, AreKnownToEveryLaterSave) {
  Write("walk.htr", test::SmallMotion());
  ASSERT_EQ(Import("cloud.glb").status, 0);
  ASSERT_EQ(Import("more.glb", {"--into", "cloud.glb"}, "walk.htr").status, 0);
  for (int frame = 1; frame <= 6; ++frame) {
    EXPECT_EQ(Seen(Scene("more.glb"), kAll, frame), Seen(Scene("cloud.glb"), kAll, frame));
  }
  ExpectNothingAtOrigin(Scene("more.glb"), kAll, 6);
}

TEST_F(ImportGapsTest, OfMotionThatIsAppliedTakeThePlaceOfThoseThatWereThere) {
  ASSERT_EQ(Import("cloud.glb").status, 0);
  TrcText text{.markers = {"b", "a"}, .frames = {{"7\t7\t7", ""}, {"", "8\t8\t8"}}};
  Write("part.trc", text.Text());
  const ProgramResult result =
      Import("part.glb",
             {"--into", "cloud.glb", "--apply", "--select", "a", "--select", "b", "--offset", "1"},
             "part.trc");
  EXPECT_THAT(result.error, HasSubstr("note: 2 markers have gaps"));
  const std::vector<Markers> seen = {{"a"}, {"b"}, {"a"}, {"a", "b"}, {"a"}, {"a", "b"}};
  for (int frame = 1; frame <= 6; ++frame) {
    EXPECT_EQ(Seen(Scene("part.glb"), {"a", "b"}, frame), seen[static_cast<std::size_t>(frame - 1)])
        << frame;
  }
}

TEST_F(ImportGapsTest, OfWhatNoImportOfMarkersMadeAreHeld) {
  Write("walk.htr", test::SmallMotion());
  ASSERT_EQ(Import("bones.glb", {}, "walk.htr").status, 0);
  TrcText text{.markers = {"Hips"}, .frames = {{"1000\t1\t1"}, {""}, {"3000\t1\t1"}}};
  Write("hips.trc", text.Text());
  const ProgramResult result =
      Import("hips.glb", {"--into", "bones.glb", "--apply", "--select", "Hips"}, "hips.trc");
  EXPECT_THAT(result.error, HasSubstr("warning: A marker has gaps: \"Hips\" (line 8, column 1). In "
                                      "its gaps viewers see such a marker at its last place"));
  const auto place = Scene("hips.glb").SeenAt("Hips", 1 / kRate);
  ASSERT_TRUE(place.has_value());
  EXPECT_NEAR((*place)[0], 1.0, 1e-6);
}

TEST_F(ImportGapsTest, AreOfMarkersAlone) {
  Write("walk.htr", test::SmallMotion());
  const ProgramResult result = Import("bones.glb", {"--gaps", "hide"}, "walk.htr");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: --gaps: a motion file has no gaps\n");
}

// What docs and README show: the first picture has something in it, and nothing at the origin.
TEST_F(ImportGapsTest, OfTheExampleLeaveFortyMarkersInTheFirstPicture) {
  Write("walk.trc", test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.trc"));
  const ProgramResult result = Import("walk.glb", {}, "walk.trc");
  EXPECT_THAT(result.output, HasSubstr("\n  Gaps    188 of 4,920 samples missing: hidden\n"));
  ASSERT_EQ(
      Import("again.glb", {"--into", "walk.glb", "--scale", "1", "--offset", "200"}, "cloud.trc")
          .status,
      0);
  for (const std::string name : {"walk.glb", "again.glb"}) {
    const SceneFile scene = Scene(name);
    Markers markers;
    for (const std::string& node : scene.NodeNames()) {
      if (node.starts_with("walker:")) markers.insert(node);
    }
    EXPECT_EQ(markers.size(), 41U);
    EXPECT_EQ(Seen(scene, markers, 1).size(), 40U) << name;
    ExpectNothingAtOrigin(scene, markers, 120);
  }
}

TEST_F(ImportGapsTest, AreInTheJson) {
  const auto document = json::parse(Import("cloud.glb", {"--json"}).output);
  EXPECT_EQ(document["samples"],
            json::parse(R"({"all": 24, "missing": 13, "missing_are": "hidden"})"));
}

}  // namespace
