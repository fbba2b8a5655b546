#include "inspect/report/frame_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "inspect/report/report.h"

namespace {

using orvane::Action;
using orvane::CheckFrames;
using orvane::FrameCircumstances;
using orvane::FrameSpan;
using orvane::ReportedFinding;

// Frames 1 to 73 of a file, all of them keyed, in a scene that they fill.
FrameCircumstances Usual() {
  FrameCircumstances frames;
  frames.held = FrameSpan{1, 73};
  frames.keyed = FrameSpan{1, 73};
  frames.range_before = {1, 73};
  frames.range_after = {1, 73};
  frames.played = FrameSpan{1, 73};
  return frames;
}

struct Row {
  std::string name;
  void (*change)(FrameCircumstances& frames);
  std::vector<std::string> causes;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class FrameCheckTest : public testing::TestWithParam<Row> {};

TEST_P(FrameCheckTest, TellsWhichFramesAreMissed) {
  FrameCircumstances frames = Usual();
  GetParam().change(frames);
  std::vector<std::string> causes;
  for (const ReportedFinding& finding :
       ReportOn(CheckFrames("a.trc", "TRC", frames), Action::kApply).findings) {
    causes.push_back(finding.cause);
  }
  EXPECT_EQ(causes, GetParam().causes);
}

INSTANTIATE_TEST_SUITE_P(
    All, FrameCheckTest,
    testing::Values(Row{"Usual", [](FrameCircumstances&) {}, {}},
                    Row{"AllThatIsHeld",
                        [](FrameCircumstances& frames) {
                          frames.asked = FrameSpan{1, 73};
                        },
                        {}},
                    Row{"NoneThatIsHeld",
                        [](FrameCircumstances& frames) {
                          frames.asked = FrameSpan{74, 80};
                        },
                        {"--range asks for the frames 74 to 80, and the file has 1 to 73"}},
                    Row{"OneThatIsHeld",
                        [](FrameCircumstances& frames) {
                          frames.asked = FrameSpan{73, 80};
                        },
                        {"--range asks for 8 frames, and the file lacks 7 of them"}},
                    Row{"NothingHeld",
                        [](FrameCircumstances& frames) {
                          frames.held.reset();
                          frames.asked = FrameSpan{1, 2};
                        },
                        {}},
                    Row{"KeysBehindTheRange",
                        [](FrameCircumstances& frames) {
                          frames.keyed = FrameSpan{74, 80};
                        },
                        {"Keys come to lie in the frames 74 to 80, and the scene's animation range "
                         "is then 1 to "
                         "73"}},
                    Row{"OneKeyInTheRange",
                        [](FrameCircumstances& frames) {
                          frames.keyed = FrameSpan{73, 80};
                        },
                        {"Keys come to lie in the frames 73 to 80, and the scene's animation range "
                         "is then 1 to 73"}},
                    Row{"RangeShortened",
                        [](FrameCircumstances& frames) {
                          frames.keyed = FrameSpan{1, 72};
                          frames.range_after = {1, 72};
                        },
                        {"The scene's animation range was 1 to 73, and is then 1 to 72"}},
                    Row{"RangeShortenedWhereNothingIsKeyed",
                        [](FrameCircumstances& frames) {
                          frames.range_before = {0, 200};
                        },
                        {}},
                    Row{"RangeThatEndsBeforeItBegins",
                        [](FrameCircumstances& frames) {
                          frames.range_after = {1, 0};
                        },
                        {}}),
    [](const auto& row) { return row.param.name; });

std::string ConsequenceOfKeys(const FrameSpan& keyed, Action action) {
  FrameCircumstances frames = Usual();
  frames.keyed = keyed;
  return ReportOn(CheckFrames("a.trc", "TRC", frames), action).findings.at(0).consequence;
}

TEST(FrameCheck, TellsHowManyFramesAreNotPlayed) {
  for (const Action action : {Action::kImport, Action::kApply}) {
    EXPECT_EQ(ConsequenceOfKeys({74, 80}, action),
              "The motion is neither played nor exported until the range is set to its frames.");
    EXPECT_EQ(
        ConsequenceOfKeys({0, 72}, action),
        "1 of these 73 frames is neither played nor exported until the range is set to all of "
        "them.");
    EXPECT_EQ(
        ConsequenceOfKeys({73, 80}, action),
        "7 of these 8 frames are neither played nor exported until the range is set to all of "
        "them.");
  }
}

}  // namespace
