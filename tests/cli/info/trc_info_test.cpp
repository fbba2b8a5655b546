#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using test::ProgramResult;
using test::TrcText;

TrcText Gaps() {
  TrcText text{.markers = {"LFHD", "RFHD"},
               .frames = {{"1\t2\t3", ""}, {"", ""}, {"", "-4\t5\t6"}, {"1\t2\t30", "1\t1\t1"}}};
  text.data_rate = "59.94";
  text.camera_rate = "120";
  text.units = "cm";
  text.first_frame = 10;
  text.frame_count = 5;
  return text;
}

class TrcInfoTest : public test::OrvaneTest {
 protected:
  ProgramResult Info(const std::string& bytes, std::vector<std::string> flags = {}) const {
    Write("walk.trc", bytes);
    flags.insert(flags.begin(), {"info", "walk.trc"});
    return Orvane(flags);
  }
};

TEST_F(TrcInfoTest, ShowsAPage) {
  const ProgramResult result = Info(Gaps().Text());
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(test::CodesIn(result.error),
              testing::ElementsAre("trc-rate-cut", "trc-frame-count", "trc-marker-gaps"));
  EXPECT_EQ(
      result.output,
      "walk.trc\n"
      "  Markers         2\n"
      "  Lengths         cm\n"
      "  Data rate       59 frames per second (the whole part of 59.94)\n"
      "  Camera rate     120 frames per second\n"
      "  Frames          5 announced, 4 found, numbered 10 to 13\n"
      "  Length          0.068 s\n"
      "  Subject         0.01 m tall, moves 0.3 m, 0.1 s\n"
      "  Bounding box    X      -4.000 to       1.000 cm\n"
      "                  Y       1.000 to       5.000 cm\n"
      "                  Z       1.000 to      30.000 cm\n"
      "\n"
      "Markers, the part of the frames that they are present in, their longest gap, and where "
      "the three longest are\n"
      "  LFHD                    50.0 %           2  11 to 12\n"
      "  RFHD                    50.0 %           2  10 to 11\n");
}

TEST_F(TrcInfoTest, LeavesOutWhatAFileWithoutFramesLacks) {
  TrcText text{.markers = {"a"}};
  text.data_rate = "0";
  const ProgramResult result = Info(text.Text());
  EXPECT_EQ(
      result.output,
      "walk.trc\n"
      "  Markers         1\n"
      "  Lengths         mm\n"
      "  Data rate       0 frames per second\n"
      "  Camera rate     60 frames per second\n"
      "  Frames          0 announced, none found\n"
      "\n"
      "Markers, the part of the frames that they are present in, their longest gap, and where "
      "the three longest are\n"
      "  a                        0.0 %           0\n");
}

TEST_F(TrcInfoTest, WritesJson) {
  auto json = nlohmann::json::parse(Info(Gaps().Text(), {"--json"}).output);
  EXPECT_EQ(json["findings"].size(), 3U);
  json.erase("findings");
  EXPECT_EQ(json, nlohmann::json::parse(R"({
    "version": 2, "file": "walk.trc", "file_type": "TRC", "length_unit": "cm",
    "data_rate": 59, "data_rate_in_file": "59.94",
    "camera_rate": 120, "camera_rate_in_file": null,
    "frames_announced": 5, "frames_found": 4, "first_frame": 10,
    "length_seconds": 0.06779661016949153,
    "bounding_box": {"min": [-4.0, 1.0, 1.0], "max": [1.0, 5.0, 30.0]},
    "subject": {"height_meters": 0.01, "way_meters": 0.27},
    "markers": [
      {"name": "LFHD", "samples_present": 2, "coverage": 0.5, "longest_gap": 2, "gaps": [[11, 12]]},
      {"name": "RFHD", "samples_present": 2, "coverage": 0.5, "longest_gap": 2, "gaps": [[10, 11]]}
    ]})"));
}

TEST_F(TrcInfoTest, WritesEverySampleAsJson) {
  const auto json = nlohmann::json::parse(Info(Gaps().Text(), {"--json", "--frames"}).output);
  EXPECT_EQ(json["markers"][0]["frames"],
            nlohmann::json::parse("[[1.0, 2.0, 3.0], null, null, [1.0, 2.0, 30.0]]"));
}

// "x" for a frame in which the marker is measured, "." for one in which it is not.
TrcText Seen(const std::string& frames) {
  TrcText text{.markers = {"LFHD"}};
  for (const char frame : frames) {
    text.frames.push_back({frame == 'x' ? "1\t2\t3" : ""});
  }
  return text;
}

TEST_F(TrcInfoTest, ListsTheThreeLongestGapsOfAMarkerAndAllAsJson) {
  const struct {
    std::string frames;
    std::string page;
    std::string json;
  } rows[] = {{"xxx", " 0\n", "[]"},
              {"..x", " 2  1 to 2\n", "[[1, 2]]"},
              {"x.x.", " 1  2, 4\n", "[[2, 2], [4, 4]]"},
              {"...", " 3  1 to 3\n", "[[1, 3]]"},
              {"x.x..x...x", " 3  7 to 9, 4 to 5, 2\n", "[[2, 2], [4, 5], [7, 9]]"},
              {".x..x.x.x", " 2  3 to 4, 1, 6, and 1 more\n", "[[1, 1], [3, 4], [6, 6], [8, 8]]"}};
  for (const auto& [frames, page, json] : rows) {
    EXPECT_THAT(Info(Seen(frames).Text()).output, testing::EndsWith(page)) << frames;
    const auto document = nlohmann::json::parse(Info(Seen(frames).Text(), {"--json"}).output);
    EXPECT_EQ(document["markers"][0]["gaps"], nlohmann::json::parse(json)) << frames;
  }
}

TEST_F(TrcInfoTest, IsRefusedWithTheReadersWords) {
  const ProgramResult result = Info("nonsense");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(
      test::CodesIn(result.error),
      testing::ElementsAre(
          "trc-tabs-missing", "trc-end-unfinished",
          "orvane: walk.trc: The file is does not have a compatible \"(X/Y/Z)\" header state",
          "  The first line of a TRC file is PathFileType, a number, (X/Y/Z) and a file name, with "
          "tabs between them."));
  EXPECT_EQ(Info("").status, 1);
  EXPECT_EQ(Orvane({"info", "missing.trc"}).status, 3);
}

TEST_F(TrcInfoTest, HasNoHierarchy) {
  const ProgramResult result = Info(Gaps().Text(), {"--hierarchy"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: --hierarchy: markers have no hierarchy\n");
}

TEST_F(TrcInfoTest, TheUserMaySayWhatAFileIs) {
  Write("walk.txt", Gaps().Text());
  EXPECT_EQ(Orvane({"info", "walk.txt", "--as", "trc"}).status, 0);
  EXPECT_EQ(Orvane({"info", "walk.txt"}).status, 1);
}

}  // namespace
