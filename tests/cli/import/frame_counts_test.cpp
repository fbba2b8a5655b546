#include "tests/cli/orvane_test.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class FrameCountsTest : public test::OrvaneTest {
 protected:
  // Imports a file that holds 3 frames and announces `count`.
  ProgramResult Import(const std::string& count, const std::vector<std::string>& flags = {}) const {
    Write("walk.htr", Replaced(SmallMotion(), "NumFrames 3", "NumFrames " + count));
    return ImportFile(flags);
  }

  ProgramResult ImportFile(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "walk.glb", "--quiet"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }
};

constexpr char kMissing[] =
    "In the missing frames the segment goes to its parent's origin, unturned. --range FROM:TO "
    "leaves them out. [htr-frame-count]\n";

// That both segments hold 3 frames in place of `announced`.
std::string BothHoldThree(const std::string& announced) {
  return "orvane: walk.htr: warning: 2 segments hold another number of frames than the " +
         announced + " that NumFrames announces, the first one 3 frames (line 20, column 2). ";
}

TEST_F(FrameCountsTest, NothingIsSaidWhenTheyAgree) {
  const ProgramResult result = Import("3");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
}

TEST_F(FrameCountsTest, MoreAnnouncedThanHeldIsAWarning) {
  const ProgramResult result = Import("4");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, BothHoldThree("4") + kMissing);
  EXPECT_TRUE(Exists("walk.glb"));
}

TEST_F(FrameCountsTest, FewerAnnouncedThanHeldIsAWarning) {
  const ProgramResult result = Import("2");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, BothHoldThree("2") + "Only 2 are imported. [htr-frame-count]\n");
}

TEST_F(FrameCountsTest, WithoutAnyAnnouncedNothingIsImported) {
  for (const std::string none : {"0", "-5"}) {
    const ProgramResult result = Import(none);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error,
                StartsWith("orvane: walk.htr: error: The header announces no frames: \"" + none +
                           "\" (line 6, column 11). The file is refused: its last frame would come "
                           "before its first. [htr-frames-unannounced]\n"));
    EXPECT_THAT(result.error,
                testing::EndsWith("]\norvane: walk.htr: nothing was written because of "
                                  "htr-frames-unannounced\n"));
  }
}

TEST_F(FrameCountsTest, SegmentsThatDifferAreAWarning) {
  Write("walk.htr", Replaced(SmallMotion(), "3 0 0 0 10 0 0 1\n", ""));
  const ProgramResult result = ImportFile();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            std::string("orvane: walk.htr: warning: A segment holds 2 frames, and NumFrames "
                        "announces 3 (line 24, column 2). ") +
                kMissing);
}

TEST_F(FrameCountsTest, OfSegmentsThatHoldFewerAndMoreBothConsequencesAreTold) {
  Write("walk.htr", Replaced(Replaced(SmallMotion(), "3 0 0 0 10 0 0 1\n", ""),
                             "3 20 0 0 0 0 0 1\n", "3 20 0 0 0 0 0 1\n4 20 0 0 0 0 0 1\n"));
  const ProgramResult result = ImportFile();
  EXPECT_EQ(result.error,
            std::string("orvane: walk.htr: warning: 2 segments hold another number of frames than "
                        "the 3 that NumFrames announces, the first one 4 frames (line 20, column "
                        "2). Only 3 are imported. ") +
                kMissing);
}

TEST_F(FrameCountsTest, WithStrictTheWarningIsARefusal) {
  const ProgramResult result = Import("4", {"--strict"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, testing::EndsWith("orvane: --strict: nothing was written because of "
                                              "htr-frame-count\n"));
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

TEST_F(FrameCountsTest, WhenThePlugInRefusesTheyAreToldFirst) {
  const ProgramResult result = Import("4", {"--segment-size", "0"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, StartsWith(BothHoldThree("4") + kMissing));
  EXPECT_THAT(result.error, testing::HasSubstr("non-zero size"));
}

// The hurried module would end the run in its own way if it were asked.
TEST_F(FrameCountsTest, FarMoreAnnouncedThanHeldIsRefusedBeforeThePlugInIsAsked) {
  for (const char* count : {"100001", "2147483647"}) {
    const ProgramResult result = Import(count, {"--module", test::HurriedModule()});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error,
              "orvane: walk.htr: The header announces " + std::string(count) +
                  " frames, but the file holds 3 [htr-frames-too-many]\n"
                  "  Is \"NumFrames\" right? --range FROM:TO imports a part of them.\n");
    EXPECT_THAT(Names(), ElementsAre("walk.htr"));
  }
}

TEST_F(FrameCountsTest, AHundredThousandMayAlwaysBeAnnounced) {
  const ProgramResult result = Import("100000");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, testing::EndsWith(kMissing));
}

TEST_F(FrameCountsTest, NothingIsSaidOfFramesThatARangeLeavesOut) {
  for (const char* count : {"2147483647", "4"}) {
    const ProgramResult result = Import(count, {"--range", "1:3", "--strict", "--force"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, IsEmpty());
  }
  EXPECT_EQ(Import("2", {"--range", "1:2", "--strict", "--force"}).status, 0);
}

// Nothing is asked of the header then.
TEST_F(FrameCountsTest, OfFramesThatARangeLeavesOutANoteIsTold) {
  Write("walk.htr", Replaced(SmallMotion(), "NumFrames 3", "NumFrames 4"));
  const ProgramResult result =
      Orvane({"import", "walk.htr", "-o", "walk.glb", "--range", "1:3", "--strict"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, Replaced(BothHoldThree("4"), "warning", "note") +
                              "Only frames that are there are asked for. [htr-frame-count]\n");
}

TEST_F(FrameCountsTest, FarTooManyAnnouncedAreAWarningWhenARangeMakesUpAFew) {
  const ProgramResult result = Import("2147483647", {"--range", "1:4"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.htr: warning: NumFrames announces 2147483647, and the file holds about "
            "3 (line 6, column 11). Frames that are not there are made up. --range FROM:TO "
            "leaves them out. [htr-frames-too-many]\n");
}

TEST_F(FrameCountsTest, NothingIsSaidOfThemWhenNoneAreImported) {
  for (const char* count : {"2147483647", "4", "2"}) {
    const ProgramResult result = Import(count, {"--no-animation", "--strict", "--force"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, IsEmpty());
  }
}

TEST_F(FrameCountsTest, MissingFramesInARangeAreAWarning) {
  const ProgramResult result = Import("5", {"--range", "1:4"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, BothHoldThree("5") + kMissing);
}

TEST_F(FrameCountsTest, ARangeThatIsAsWideBoundsNothing) {
  EXPECT_EQ(Import("2147483647", {"--range", "1:2147483646"}).status, 1);
}

// The dialog says what of a range is wrong; the header is right.
TEST_F(FrameCountsTest, WhatARangeHasBeyondTheFileIsTheDialogsToRefuse) {
  const std::string within = "  The range must lie within the frames of the file.\n";
  EXPECT_EQ(Import("3", {"--range", "1:1000000"}).error,
            "orvane: walk.htr: Please choose an end frame less than or equal to 3.\n" + within);
  EXPECT_EQ(Import("3", {"--range", "-2147483648:3"}).error,
            "orvane: walk.htr: Please choose a start frame equal to or greater than 1.\n" + within);
  EXPECT_EQ(Import("3", {"--range", "2000000:1000000"}).error,
            "orvane: walk.htr: Please choose an end frame less than or equal to 3.\n" + within);
}

// With the dialog's refusal it is told that the header leaves frames out.
TEST_F(FrameCountsTest, ARangeOfFramesThatAreNotAnnouncedIsAWarningToo) {
  const ProgramResult result = Import("2", {"--range", "1:3"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              StartsWith(BothHoldThree("2") + "Only 2 are imported. [htr-frame-count]\n"));
}

TEST_F(FrameCountsTest, FramesHaveTheNumbersOfTheFile) {
  const std::string file = Replaced(SmallMotion(), "[Hips]\n1 ", "[Hips]\n2000001 ");
  Write("walk.htr", Replaced(file, "NumFrames 3", "NumFrames 4"));
  const std::vector<std::string> flags = {"--range", "2000001:2000003", "--strict", "--allow",
                                          "htr-frame-number"};
  EXPECT_EQ(ImportFile(flags).status, 0);
}

TEST_F(FrameCountsTest, TenTimesWhatIsHeldMayBeAnnounced) {
  std::string frames;
  for (int i = 0; i < 10'001; ++i) frames += "1 0 0 0 0 0 0 1\n";
  const std::string file = Replaced(SmallMotion(), "[Hips]\n", "[Hips]\n" + frames);
  Write("walk.htr", Replaced(file, "NumFrames 3", "NumFrames 100040"));
  EXPECT_EQ(ImportFile().status, 0);
  Write("walk.htr", Replaced(file, "NumFrames 3", "NumFrames 100041"));
  const ProgramResult result = ImportFile({"--force"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              testing::HasSubstr("\norvane: walk.htr: The header announces 100041 frames, but its "
                                 "segments hold 3 to 10004 [htr-frames-too-many]\n"));
  EXPECT_THAT(result.error, Not(testing::HasSubstr("[htr-frame-count]"))) << "which says the same";
}

// --- The host's time, which is 32 bits of ticks: 80 are a frame here ---

TEST_F(FrameCountsTest, FramesOutsideTheHostsTimeAreAWarning) {
  const std::string time =
      ", and the host's time from -26843545 to 26843545\n  --offset moves the motion.\n";
  EXPECT_EQ(Import("3", {"--offset", "2147483647"}).error,
            "orvane: walk.htr: 3 of 3 frames get no keys: the motion would go from frame "
            "2147483648 to 2147483650" +
                time);
  EXPECT_EQ(Import("3", {"--offset", "26843543", "--force"}).error,
            "orvane: walk.htr: 1 of 3 frames gets no keys: the motion would go from frame 26843544 "
            "to 26843546" +
                time);
  EXPECT_EQ(Import("3", {"--offset", "-26843547", "--range", "1:2", "--strict", "--force"}).status,
            1);
  EXPECT_EQ(Import("3", {"--offset", "26843542", "--strict", "--force"}).status, 0);
  EXPECT_EQ(Import("3", {"--offset", "2147483647", "--no-animation", "--force"}).error, "");
}

TEST_F(FrameCountsTest, TheHostsTimeIsThatOfTheFrameRate) {
  const ProgramResult result = Import("3", {"--offset", "26843543", "--frame-rate", "keep"});
  EXPECT_THAT(result.error, testing::HasSubstr("the host's time from -13421772 to 13421772\n"));
}

}  // namespace
