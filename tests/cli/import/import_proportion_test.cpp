#include "tests/cli/orvane_test.h"
#include "tests/support/htr_text.h"
#include "tests/support/trc_text.h"
#include "tests/support/user_settings.h"

namespace {

using test::HtrText;
using test::ProgramResult;
using test::TrcText;
using testing::HasSubstr;
using testing::IsEmpty;

// A hand and its fingers, which hold one frame each.
HtrText Hand(int segments, int announced) {
  HtrText text;
  text.frame_count = announced;
  text.segments.push_back({.name = "Hand", .frames = {"0 0 0 0 0 0"}});
  for (int i = 1; i < segments; ++i) {
    text.segments.push_back(
        {.name = "Finger" + std::to_string(i), .parent = "Hand", .frames = {"0 0 0 0 0 0"}});
  }
  return text;
}

TrcText Markers(int markers, int announced) {
  TrcText text;
  text.frame_count = announced;
  text.frames.emplace_back();
  for (int i = 0; i < markers; ++i) {
    text.markers.push_back("m" + std::to_string(i));
    text.frames.front().emplace_back("1\t2\t3");
  }
  return text;
}

constexpr char kAdvice[] = "  Is \"NumFrames\" right? --range FROM:TO imports a part of them.\n";

// The module of the tests does nothing, whatever it is asked for: what it is asked for at all is
// what the program takes for in proportion.
class ImportProportionTest : public test::OrvaneTest {
 protected:
  ProgramResult Import(const std::string& text, const std::vector<std::string>& flags = {},
                       const std::string& file = "hand.htr") const {
    Write(file, text);
    std::vector<std::string> arguments = {
        "import", file, "-o", "out.glb", "--force", "--module", test::HurriedModule(), "--quiet"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  // `told` is what is said of the file before.
  static void ExpectRefused(const ProgramResult& result, const std::string& error,
                            const std::string& told = "") {
    EXPECT_EQ(result.status, 1);
    const std::string code = error.starts_with("walk.trc") ? "trc" : "htr";
    EXPECT_EQ(result.error, told + "orvane: " + error + " [" + code + "-frame-count]\n" + kAdvice);
  }

  // A scene with the hand and so many of its segments.
  void MakeScene(int segments) const {
    Write("scene.htr", Hand(segments, 1).Text());
    EXPECT_EQ(Orvane({"import", "scene.htr", "-o", "scene.glb", "--quiet"}).status, 0);
  }

  test::NoUserSettings none_{folder_.File("config")};
};

TEST_F(ImportProportionTest, AMillionFramesOfSegmentsMayBeMadeUp) {
  EXPECT_EQ(Import(Hand(100, 10'001).Text()).status, 0);
  ExpectRefused(Import(Hand(100, 10'002).Text()),
                "hand.htr: The header announces 10002 frames, but the file holds 1: 1000100 frames "
                "of 100 segments would be made up, and 100 are held");
}

TEST_F(ImportProportionTest, SoMayTenTimesWhatTheFileHolds) {
  HtrText text = Hand(50, 0);
  for (auto& segment : text.segments) segment.frames.assign(2100, "0 0 0 0 0 0");
  text.frame_count = 11 * 2100;
  EXPECT_EQ(Import(text.Text()).status, 0);
  text.frame_count += 1;
  ExpectRefused(Import(text.Text()),
                "hand.htr: The header announces 23101 frames, but the file holds 2100: 1050050 "
                "frames of 50 segments would be made up, and 105000 are held");
}

TEST_F(ImportProportionTest, SegmentsThatHoldLessThanTheLongestAreNotMadeUp) {
  HtrText text = Hand(101, 20'000);
  text.segments.front().frames.assign(20'000, "0 0 0 0 0 0");
  const ProgramResult result = Import(text.Text());
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, HasSubstr("100 segments hold another number of frames than the 20000 "
                                      "that NumFrames announces, the first one 1 frame (line "));
}

TEST_F(ImportProportionTest, SegmentsThatGetNoKeysDoNotCount) {
  HtrText text = Hand(100, 100'000);
  for (std::size_t i = 5; i < text.segments.size(); ++i) text.segments[i].parent = "Nobody";
  EXPECT_EQ(Import(text.Text()).status, 0);
  text.segments.back().parent = "Hand";
  for (std::size_t i = 5; i < 15; ++i) text.segments[i].parent = "Hand";
  ExpectRefused(
      Import(text.Text()),
      "hand.htr: The header announces 100000 frames, but the file holds 1: 1599984 "
      "frames of 16 segments would be made up, and 100 are held",
      "orvane: hand.htr: warning: The parents of 84 segments are unknown: \"Nobody\", ... "
      "(line 30, column 10). A new skeleton goes without such a segment and what hangs "
      "from it. [htr-parent-unknown]\n");
}

// Every bone is made as often as its segment is listed.
TEST_F(ImportProportionTest, SegmentsThatAreListedTwiceCountTwice) {
  HtrText text = Hand(3, 90'000);
  for (auto& segment : text.segments) segment.base = "0 0 0 0 0 0 1";
  std::string base = text.BasePosition();
  std::string bytes = text.Header() + text.Hierarchy() + base;
  EXPECT_EQ(Import(bytes + text.Motion() + "[EndOfFile]\n").status, 0);
  bytes = test::Replaced(bytes, "NumSegments 3", "NumSegments 18");
  for (int i = 1; i < 6; ++i) bytes += base;
  const ProgramResult result = Import(bytes + text.Motion() + "[EndOfFile]\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: hand.htr: warning: The file holds 3 lines in [SegmentNames&Hierarchy], and "
            "NumSegments announces 18 (line 5, column 13). The segments that are there are taken. "
            "[htr-hierarchy-count]\n"
            "orvane: hand.htr: warning: [BasePosition] comes again (line 22, column 2). The last "
            "one counts, and a new skeleton has bones more than once. [htr-base-repeated]\n"
            "orvane: hand.htr: The header announces 90000 frames, but the file holds 1: 1169987 "
            "frames of 13 segments would be made up, and 3 are held "
            "[htr-frame-count]\n"
            "  [BasePosition] comes again, so that segments are listed more than once.\n");
}

// At every level the bones double: a kilobyte would ask for gigabytes.
TEST_F(ImportProportionTest, AHierarchyThatIsListedAgainIsRefusedBeforeItGrows) {
  HtrText text;
  for (int level = 0; level < 18; ++level) {
    const std::string parent = level == 0 ? "GLOBAL" : "bone" + std::to_string(level - 1);
    text.segments.push_back(
        {.name = "bone" + std::to_string(level), .parent = parent, .frames = {"0 0 0 0 0 0"}});
  }
  const std::string bytes =
      test::Replaced(text.Text(), "[BasePosition]", "[BasePosition]\n[BasePosition]");
  const ProgramResult result = Import(bytes);
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(
      result.error,
      testing::EndsWith(
          "orvane: hand.htr: The hierarchy would become 262143 or more bones of 18 segments\n"
          "  [BasePosition] comes again, so that segments are listed more than once.\n"));
}

TEST_F(ImportProportionTest, ARangeBoundsWhatIsMadeUp) {
  const std::string text = Hand(50, 100'000).Text();
  EXPECT_EQ(Import(text, {"--range", "1:1"}).status, 0);
  EXPECT_EQ(Import(text, {"--range", "80001:100000"}).status, 0);
  EXPECT_EQ(Import(text, {"--range", "1:50000"}).status, 1);
}

TEST_F(ImportProportionTest, WhatIsNotKeyedDoesNotCount) {
  for (const int announced : {100'000, 2'147'483'647}) {
    const ProgramResult result = Import(Hand(50, announced).Text(), {"--no-animation"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, IsEmpty());
  }
}

// They get no keys; that is told.
TEST_F(ImportProportionTest, FramesOutsideTheHostsTimeDoNotCount) {
  const std::string text = Hand(50, 100'000).Text();
  EXPECT_EQ(Import(text, {"--offset", "2147483647"}).status, 0);
  EXPECT_EQ(Import(text, {"--offset", "-13510000"}).status, 0);
  EXPECT_EQ(Import(text, {"--offset", "13371771"}).status, 1);
}

TEST_F(ImportProportionTest, WhatTheUserChoseLastCounts) {
  Write("one.htr", Hand(1, 1).Text());
  const std::vector<std::string> once = {"import",     "one.htr", "-o",      "one.glb",
                                         "--settings", "user",    "--quiet", "--no-animation"};
  EXPECT_EQ(Orvane(once).status, 0);
  const std::string text = Hand(50, 100'000).Text();
  EXPECT_EQ(Import(text, {"--settings", "user"}).status, 0);
  EXPECT_EQ(Import(text, {"--settings", "user", "--animation"}).status, 1);
  EXPECT_EQ(Import(text).status, 1);
}

// --- Motion that is applied ---

TEST_F(ImportProportionTest, OfMotionThatIsAppliedOnlySegmentsWithBonesCount) {
  MakeScene(10);
  const std::vector<std::string> apply = {"--into", "scene.glb", "--apply", "--select"};
  const auto import = [&](const std::string& selected) {
    std::vector<std::string> flags = apply;
    flags.push_back(selected);
    return Import(Hand(50, 100'000).Text(), flags);
  };
  EXPECT_EQ(import("Hand").status, 0);
  EXPECT_EQ(import("scene").status, 0) << "whose first bone is the hand";
  EXPECT_EQ(import("Finger3").status, 0);
  EXPECT_THAT(import("nobody").error, Not(HasSubstr("would be made up")));
}

TEST_F(ImportProportionTest, TheyAreRefusedWhenTheyAreTooMany) {
  MakeScene(11);
  for (const char* selected : {"Hand", "scene"}) {
    ExpectRefused(
        Import(Hand(50, 100'000).Text(), {"--into", "scene.glb", "--apply", "--select", selected}),
        "hand.htr: The header announces 100000 frames, but the file holds 1: 1099989 frames of 11 "
        "segments would be made up, and 50 are held");
  }
}

// --- Clearing ---

TEST_F(ImportProportionTest, KeysAreDeletedAtNoMoreThanFiveHundredMillionTicks) {
  HtrText text = Hand(50, 1042);
  text.frame_rate = 1;
  EXPECT_EQ(Import(text.Text()).status, 0);
  text.frame_count = 20'000;
  const std::string before = "hand.htr: The header announces 20000 frames, but the file holds 1: ";
  ExpectRefused(Import(text.Text()),
                before +
                    "9599520000 deletions of keys would clear 19999 frames of 50 segments, "
                    "and 500000000 are the most");
  // 160 ticks are a frame of a new scene.
  EXPECT_EQ(Import(text.Text(), {"--frame-rate", "keep"}).status, 0);
  EXPECT_EQ(Import(text.Text(), {"--no-animation"}).status, 0);
  EXPECT_EQ(Import(text.Text(), {"--range", "1:1000"}).status, 0);
}

TEST_F(ImportProportionTest, FramesThatAreHeldMayTakeAnyNumberOfDeletions) {
  HtrText text = Hand(50, 0);
  for (auto& segment : text.segments) segment.frames.assign(2000, "0 0 0 0 0 0");
  text.frame_count = 2000;
  text.frame_rate = 1;
  EXPECT_EQ(Import(text.Text()).status, 0);
}

// --- Marker files ---

TEST_F(ImportProportionTest, AMillionFramesOfMarkersMayBeMadeUp) {
  EXPECT_EQ(Import(Markers(100, 10'001).Text(), {}, "walk.trc").status, 0);
  ExpectRefused(Import(Markers(100, 10'002).Text(), {}, "walk.trc"),
                "walk.trc: The header announces 10002 frames, but the file holds 1: 1000100 frames "
                "of 100 markers would be made up, and 100 are held");
}

// Unlike those of a motion file, frames are taken from where the range begins.
TEST_F(ImportProportionTest, OfMarkersAllFramesBehindTheLastLineAreMadeUp) {
  const std::string text = Markers(100, 30'000).Text();
  EXPECT_THAT(Import(text, {"--range", "2:10001"}, "walk.trc").error,
              HasSubstr("[apply-range-outside]"))
      << "for another reason: the file holds none of them";
  EXPECT_EQ(Import(text, {"--range", "1:10001"}, "walk.trc").status, 0);
  EXPECT_THAT(Import(text, {"--range", "2:10002"}, "walk.trc").error,
              HasSubstr("would be made up"));
}

TEST_F(ImportProportionTest, MarkersWithoutATargetDoNotCount) {
  const std::string text = Markers(100, 30'000).Text();
  EXPECT_EQ(Import(text, {"--apply", "--selected-only"}, "walk.trc").status, 0);
  EXPECT_EQ(Import(text, {"--apply"}, "walk.trc").status, 1);
}

TEST_F(ImportProportionTest, MarkersHaveOneControllerToClear) {
  TrcText text = Markers(50, 2084);
  text.data_rate = "1";
  EXPECT_EQ(Import(text.Text(), {}, "walk.trc").status, 0);
  text.frame_count = 2085;
  ExpectRefused(Import(text.Text(), {}, "walk.trc"),
                "walk.trc: The header announces 2085 frames, but the file holds 1: 500160000 "
                "deletions of keys would clear 2084 frames of 50 markers, and 500000000 are the "
                "most");
}

// The verb has no flag that takes a part of the frames.
TEST_F(ImportProportionTest, AMappingIsNotMadeOfThemEither) {
  Write("walk.trc", Markers(100, 30'000).Text());
  Write("picks.txt", "");
  const ProgramResult result =
      Orvane({"map", "create", "walk.trc", "-o", "walk.mnm", "--picks", "picks.txt"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: The header announces 30000 frames, but the file holds 1: 2999900 "
            "frames of 100 markers would be made up, and 100 are held [trc-frame-count]\n"
            "  Is \"NumFrames\" right?\n");
}

}  // namespace
