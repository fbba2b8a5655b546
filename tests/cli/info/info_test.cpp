#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::HasSubstr;
using testing::Not;

class InfoTest : public test::OrvaneTest {
 protected:
  InfoTest() { Write("walk.htr", SmallMotion()); }

  // Expects that the codes `told_` are all that is told.
  std::string Page(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"info", "walk.htr"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(test::CodesIn(result.error), told_);
    return result.output;
  }

  json Json(std::vector<std::string> flags = {}) const {
    flags.push_back("--json");
    return json::parse(Page(flags));
  }

  std::vector<std::string> told_;
};

TEST_F(InfoTest, PageTellsWhatAPersonWantsToKnow) {
  EXPECT_EQ(Page(),
            "walk.htr\n"
            "  Segments        2\n"
            "  Lengths         mm\n"
            "  Angles          Degrees\n"
            "  Frame rate      60 frames per second\n"
            "  Frames          3 announced, 3 found, numbered 1 to 3\n"
            "  Length          0.050 s\n"
            "  Subject         0.10 m tall, moves 0.1 m, 0.05 s\n"
            "  Bounding box    X     -90.000 to      20.000 mm\n"
            "                  Y     900.000 to    1000.000 mm\n"
            "                  Z       0.000 to       0.000 mm\n"
            "\n"
            "Segments and their lengths in mm\n"
            "  Hips                 100.000\n"
            "    Spine              250.500\n");
}

TEST_F(InfoTest, HierarchyReadsNoMotion) {
  Write("walk.htr", Replaced(SmallMotion(), "[Spine]", "[Spline]"));
  EXPECT_EQ(Page({"--hierarchy"}),
            "walk.htr\n"
            "  Segments        2\n"
            "  Lengths         mm\n"
            "  Angles          Degrees\n"
            "  Frame rate      60 frames per second\n"
            "  Frames          3 announced\n"
            "\n"
            "Segments and their lengths in mm\n"
            "  Hips                 100.000\n"
            "    Spine              250.500\n");
}

TEST_F(InfoTest, FramesThatDifferFromSegmentToSegmentAreTold) {
  Write("walk.htr", Replaced(SmallMotion(), "3 0 0 0 10 0 0 1\n", ""));
  told_ = {"htr-frame-count"};
  EXPECT_THAT(Page(), HasSubstr("Frames          3 announced, 2 to 3 found, numbered 1 to 3\n"));
}

TEST_F(InfoTest, AFileWithoutMotionHasNoLengthInSpace) {
  Write("walk.htr", SmallMotion().substr(0, SmallMotion().find("[Hips]")));
  told_ = {"htr-motion-missing", "htr-end-missing"};
  EXPECT_THAT(Page(), HasSubstr("Frames          3 announced, none found\n"));
  EXPECT_THAT(Page(), Not(HasSubstr("Bounding box")));
  EXPECT_TRUE(Json()["motion"]["bounding_box"].is_null());
}

TEST_F(InfoTest, ARateThatIsNotPositiveGivesNoSeconds) {
  Write("walk.htr", Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 0"));
  told_ = {"htr-rate-out-of-range"};
  EXPECT_THAT(Page(), Not(HasSubstr("Length  ")));
  EXPECT_TRUE(Json()["motion"]["length_seconds"].is_null());
}

TEST_F(InfoTest, DeepChainsStayReadable) {
  std::string hierarchy = "S0 GLOBAL\n";
  std::string base = "S0 0 0 0 0 0 0 1\n";
  for (int i = 1; i < 40; ++i) {
    hierarchy += "S" + std::to_string(i) + " S" + std::to_string(i - 1) + "\n";
    base += "S" + std::to_string(i) + " 0 1 0 0 0 0 1\n";
  }
  Write("walk.htr", "[Header]\nNumSegments 40\nNumFrames 1\n[SegmentNames&Hierarchy]\n" +
                        hierarchy + "[BasePosition]\n" + base);
  told_ = {"htr-keyword-missing", "htr-motion-missing", "htr-keyword-left-out", "htr-end-missing"};
  EXPECT_THAT(Page(), HasSubstr("\n" + std::string(62, ' ') + "S30 "));
  EXPECT_THAT(Page(), HasSubstr("\n" + std::string(62, ' ') + "S39 (depth 39) "));
}

TEST_F(InfoTest, JsonHasTheDocumentedFields) {
  EXPECT_EQ(Json(), json::parse(R"({
    "version": 2,
    "file": "walk.htr",
    "file_type": "HTR",
    "length_unit": "mm",
    "angle_unit_of_file": "Degrees",
    "gravity_axis": "Y",
    "scale_factor": 1,
    "frame_rate": 60,
    "frames_announced": 3,
    "findings": [],
    "motion": {
      "frames_found_fewest": 3,
      "frames_found_most": 3,
      "first_frame": 1,
      "length_seconds": 0.05,
      "bounding_box": {"min": [-90, 900, 0], "max": [20, 1000, 0]},
      "subject": {"height_meters": 0.1, "way_meters": 0.13453624047073712}
    },
    "segments": [
      {"name": "Hips", "root": true, "parent": null, "length": 100,
       "base_translation": [0, 900, 0], "base_rotation_rad": [0, 0, 0], "frame_count": 3},
      {"name": "Spine", "root": false, "parent": "Hips", "length": 250.5,
       "base_translation": [0, 100, 0], "base_rotation_rad": [0, 0, 0], "frame_count": 3}
    ]})"));
}

TEST_F(InfoTest, JsonOfTheHierarchyHasNoMotion) {
  EXPECT_TRUE(Json({"--hierarchy"})["motion"].is_null());
}

TEST_F(InfoTest, FramesHaveEveryValueInItsShortestForm) {
  Write("walk.htr",
        Replaced(SmallMotion(), "2 10 0 0 0 0 90 1", "2 0.1 -0 1e22 0 0 90 0.30000000000000004"));
  told_ = {"htr-position-far"};
  EXPECT_THAT(Page({"--json", "--frames"}),
              HasSubstr("[0.1, -0.0, 1e+22, 0, 0, 1.5707963267948966, 0.30000000000000004]"));
  const json frames = Json({"--frames"})["segments"][0]["frames"];
  EXPECT_EQ(frames.size(), 3U);
  EXPECT_EQ(frames[2], json::parse("[20, 0, 0, 0, 0, 0, 1]"));
}

TEST_F(InfoTest, NamesThatAreNotUtf8AreStillJson) {
  std::string motion = SmallMotion();
  for (std::size_t at = 0; (at = motion.find("Spine", at)) != std::string::npos;) {
    motion.replace(at, 5, "Sp\xff");
  }
  Write("walk.htr", motion);
  told_ = {"htr-name-encoding"};
  EXPECT_EQ(Json()["segments"][1]["name"], "Sp\xEF\xBF\xBD");
}

TEST_F(InfoTest, DoesNotNeedThePluginNorAnExtension) {
  Write("walk.txt", SmallMotion());
  EXPECT_EQ(Orvane({"info", "walk.txt"}).status, 0);
  EXPECT_THAT(Orvane({"info", "walk"}).output, testing::StartsWith("walk.htr\n"));
}

}  // namespace
