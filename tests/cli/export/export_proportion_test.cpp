#include "tests/cli/orvane_test.h"
#include "tests/support/htr_text.h"
#include "tests/support/user_settings.h"

namespace {

using test::HtrText;
using test::ProgramResult;

// The module of the tests writes nothing when it is asked for an export, which is noticed.
constexpr int kAsked = 3;

class ExportProportionTest : public test::OrvaneTest {
 protected:
  // A scene of a hand with so many bones, each keyed in `held` frames from the one behind `gap` on;
  // its animation range begins in frame 1 and ends where the keys do.
  void MakeScene(int bones, int gap, int held = 1) const {
    HtrText text;
    text.segments.push_back({.name = "Hand"});
    for (int i = 1; i < bones; ++i) {
      text.segments.push_back({.name = "Finger" + std::to_string(i), .parent = "Hand"});
    }
    for (auto& segment : text.segments) {
      segment.frames.assign(static_cast<std::size_t>(held) + 1, "0 0 0 0 0 0");
    }
    Write("in.htr", text.Text());
    const ProgramResult result =
        Orvane({"import", "in.htr", "-o", "scene.glb", "--range", "1:" + std::to_string(held),
                "--offset", std::to_string(gap), "--end-effectors", "--quiet", "--force"});
    EXPECT_EQ(result.status, 0) << result.error;
  }

  ProgramResult Export(const std::vector<std::string>& flags = {},
                       const std::string& selected = "Hand") const {
    std::vector<std::string> arguments = {
        "export",   "scene.glb",           "-o",     "out.htr", "--select", selected, "--quiet",
        "--module", test::HurriedModule(), "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  test::NoUserSettings none_{folder_.File("config")};
};

TEST_F(ExportProportionTest, AMillionFramesOfBonesMayBeMadeUp) {
  MakeScene(50, 20'000);
  EXPECT_EQ(Export().status, kAsked);
  MakeScene(50, 20'001);
  const ProgramResult result = Export();
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: scene.glb: There are 20002 frames to export, but the keys of the scene hold "
            "1: 1000050 "
            "frames of 50 bones would be made up, and 50 are held\n"
            "  --range FROM:TO exports a part of the animation range.\n");
}

TEST_F(ExportProportionTest, SoMayTenTimesWhatTheSceneHolds) {
  MakeScene(50, 21'000, 2100);
  EXPECT_EQ(Export().status, kAsked);
  MakeScene(50, 21'001, 2100);
  EXPECT_EQ(Export().status, 1);
}

TEST_F(ExportProportionTest, OnlyBonesThatAreExportedCount) {
  MakeScene(50, 90'000);
  EXPECT_EQ(Export({}, "Hand").status, 1);
  EXPECT_EQ(Export({}, "in").status, 1) << "whose first bone is the hand";
  EXPECT_EQ(Export({}, "Finger7").status, kAsked);
  EXPECT_THAT(Export({}, "nobody").error, testing::HasSubstr("[export-select-unknown]"));
}

TEST_F(ExportProportionTest, ARangeBoundsWhatIsMadeUp) {
  MakeScene(50, 30'000);
  EXPECT_EQ(Export({"--range", "1:30001"}).status, 1);
  EXPECT_EQ(Export({"--range", "1:20000"}).status, kAsked);
  EXPECT_EQ(Export({"--range", "10001:30001"}).status, kAsked);
  EXPECT_EQ(Export({"--range", "-2000000000:5"}).status, kAsked) << "which the plug-in refuses";
}

TEST_F(ExportProportionTest, WhatIsNotExportedDoesNotCount) {
  MakeScene(50, 2'000'000);
  EXPECT_EQ(Export({"--no-animation"}).status, kAsked);
  EXPECT_EQ(Export({"--no-animation", "--current-pose"}).status, kAsked);
  EXPECT_EQ(Export({"--current-pose"}).status, 1);
}

TEST_F(ExportProportionTest, WhatTheUserChoseLastCounts) {
  MakeScene(50, 30'000);
  EXPECT_EQ(Orvane({"export", "scene.glb", "-o", "pose.htr", "--select", "Hand", "--settings",
                    "user", "--no-animation", "--quiet"})
                .status,
            0);
  EXPECT_EQ(Export({"--settings", "user"}).status, kAsked);
  EXPECT_EQ(Export({"--settings", "user", "--animation"}).status, 1);
  EXPECT_EQ(Export().status, 1);
}

}  // namespace
