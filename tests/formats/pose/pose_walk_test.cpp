#include "formats/pose/pose_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "formats/htr/reader.h"
#include "formats/units/units.h"
#include "tests/support/htr_skeleton_pose.h"
#include "tests/support/tolerances.h"

namespace {

using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::kRadiansPerDegree;
using orvane::ListHierarchy;
using orvane::PoseParts;
using orvane::PoseWalk;
using orvane::Vector3;
using testing::ElementsAre;

HtrSegment* Add(HtrDocument& document, const std::string& name, HtrSegment* parent) {
  HtrSegment* segment = document.AddSegment(HtrSegment(name));
  segment->SetIsRoot(parent == nullptr);
  if (parent != nullptr) segment->SetParent(parent);
  return segment;
}

void ExpectPosition(const PoseWalk& walk, std::size_t entry, double x, double y, double z) {
  EXPECT_NEAR(walk.PositionOf(entry)[0], x, 1e-12);
  EXPECT_NEAR(walk.PositionOf(entry)[1], y, 1e-12);
  EXPECT_NEAR(walk.PositionOf(entry)[2], z, 1e-12);
}

TEST(PoseWalkTest, AJointStandsWhereItsParentsPutIt) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->SetBaseTranslation(1, 2, 3);
  hips->AddFrame({10, 0, 0}, orvane::Vector3{0, 0, 90 * orvane::kRadiansPerDegree}, 1);
  HtrSegment* spine = Add(document, "Spine", hips);
  spine->SetBaseTranslation(0, 5, 0);
  spine->AddFrame({0, 0, 1}, orvane::Vector3{0, 0, 0}, 1);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  walk.MoveTo(0);
  EXPECT_THAT(walk.PositionOf(0), ElementsAre(11, 2, 3));
  ExpectPosition(walk, 1, 6, 2, 4);
}

TEST(PoseWalkTest, InTheWorldASegmentIsTurnedByAllThatItHangsFrom) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->SetBaseRotation(0, 0, 90 * kRadiansPerDegree);
  hips->AddFrame({}, Vector3{0, 0, 0}, 1);
  HtrSegment* spine = Add(document, "Spine", hips);
  spine->AddFrame({}, Vector3{0, 0, 45 * kRadiansPerDegree}, 1);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  walk.MoveTo(0);
  const orvane::EulerRotation world(walk.WorldRotationOf(1).Matrix());
  EXPECT_NEAR(world[0], 0, 1e-12);
  EXPECT_NEAR(world[1], 0, 1e-12);
  EXPECT_NEAR(world[2], 135 * kRadiansPerDegree, 1e-12);
  EXPECT_NEAR(orvane::EulerRotation(walk.WorldRotationOf(0).Matrix())[2], 90 * kRadiansPerDegree,
              1e-12);
}

TEST(PoseWalkTest, ARotationIsTheBaseTimesTheFrameAgainstTheParent) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->SetBaseRotation(0, 0, 90 * kRadiansPerDegree);
  hips->AddFrame({}, Vector3{90 * kRadiansPerDegree, 0, 0}, 1);
  HtrSegment* spine = Add(document, "Spine", hips);
  spine->AddFrame({}, Vector3{0, 0, 90 * kRadiansPerDegree}, 1);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  walk.MoveTo(0);
  // Rz(90) Rx(90) takes Y to Z.
  EXPECT_NEAR(walk.RotationOf(0).Element(2, 1), 1, 1e-12);
  // Rz(90) takes X to Y, wherever the parent looks.
  EXPECT_NEAR(walk.RotationOf(1).Element(1, 0), 1, 1e-12);
}

TEST(PoseWalkTest, TheBasePositionNeedsNoFrames) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->SetBaseTranslation(1, 2, 3);
  hips->SetBaseRotation(0, 0, 90 * kRadiansPerDegree);
  Add(document, "Spine", hips)->SetBaseTranslation(0, 5, 0);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  walk.TakeBasePosition();
  EXPECT_THAT(walk.Holding(), ElementsAre(0, 1));
  ExpectPosition(walk, 1, -4, 2, 3);
}

TEST(PoseWalkTest, WhatHangsFromASegmentWithoutTheFrameHangsFromTheNextOneUp) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  HtrSegment* spine = Add(document, "Spine", hips);
  HtrSegment* neck = Add(document, "Neck", spine);
  HtrSegment* head = Add(document, "Head", neck);
  const auto add_frames = [](HtrSegment* segment, int count) {
    for (int frame = 0; frame < count; ++frame) segment->AddFrame({1, 0, 0}, Vector3(), 1);
  };
  add_frames(hips, 3);
  add_frames(spine, 1);
  add_frames(neck, 2);
  add_frames(head, 4);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  walk.MoveTo(0);
  EXPECT_THAT(walk.Holding(), ElementsAre(0, 1, 2, 3));
  ExpectPosition(walk, 3, 4, 0, 0);
  walk.MoveTo(1);
  EXPECT_THAT(walk.Holding(), ElementsAre(0, 2, 3));
  ExpectPosition(walk, 3, 3, 0, 0);
  walk.MoveTo(2);
  EXPECT_THAT(walk.Holding(), ElementsAre(0, 3));
  ExpectPosition(walk, 3, 2, 0, 0);
  walk.MoveTo(3);
  EXPECT_THAT(walk.Holding(), ElementsAre(3));
  ExpectPosition(walk, 3, 1, 0, 0);
  walk.MoveTo(4);
  EXPECT_TRUE(walk.Holding().empty());
}

// Whoever walks frame by frame is answered from blocks of frames, and whoever jumps is not.
TEST(PoseWalkTest, APoseIsTheSameHoweverOneGetsThere) {
  constexpr std::size_t kFrames = 300;
  HtrDocument document;
  HtrSegment* last = nullptr;
  for (int i = 0; i < 7; ++i) {
    last = Add(document, std::to_string(i), last);
    last->SetBaseTranslation(0.1 * i, 1.5, -0.3);
    last->SetBaseRotation(0.2, 0.1 * i, -0.7);
    const std::size_t held = i == 3 ? 65 : i == 5 ? 190 : kFrames;
    for (std::size_t frame = 0; frame < held; ++frame) {
      const double at = 0.01 * static_cast<double>(frame) + i;
      last->AddFrame({at, -at, 1 / at}, Vector3{at, 2 * at, -at}, 1);
    }
  }
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  PoseWalk positions(ListHierarchy(document), PoseParts::kPositions);
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    walk.MoveTo(frame);
    positions.MoveTo(frame);
    PoseWalk jump(ListHierarchy(document), PoseParts::kPositionsAndRotations);
    jump.MoveTo(frame);
    ASSERT_EQ(walk.Holding(), jump.Holding()) << frame;
    for (const std::size_t entry : walk.Holding()) {
      EXPECT_EQ(walk.PositionOf(entry), jump.PositionOf(entry)) << frame << ' ' << entry;
      EXPECT_EQ(walk.PositionOf(entry), positions.PositionOf(entry)) << frame << ' ' << entry;
      for (unsigned column = 0; column < 3; ++column) {
        for (unsigned row = 0; row < 3; ++row) {
          EXPECT_EQ(walk.RotationOf(entry).Element(row, column),
                    jump.RotationOf(entry).Element(row, column));
        }
      }
    }
  }
}

TEST(PoseWalkTest, AFrameMayBeAskedForAgainAndAfterTheBasePosition) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->SetBaseTranslation(0, 5, 0);
  for (int frame = 0; frame < 4; ++frame) hips->AddFrame({double(frame), 0, 0}, Vector3(), 1);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  for (const std::size_t frame : {0U, 1U, 2U, 2U}) walk.MoveTo(frame);
  ExpectPosition(walk, 0, 2, 5, 0);
  walk.TakeBasePosition();
  ExpectPosition(walk, 0, 0, 5, 0);
  walk.MoveTo(2);
  ExpectPosition(walk, 0, 2, 5, 0);
  walk.MoveTo(3);
  ExpectPosition(walk, 0, 3, 5, 0);
}

TEST(PoseWalkTest, FramesMayBeLeftOut) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  HtrSegment* spine = Add(document, "Spine", hips);
  hips->AddFrame({9, 9, 9}, Vector3(), 1);
  for (int frame = 0; frame < 8; ++frame) spine->AddFrame({double(frame), 0, 0}, Vector3(), 1);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  walk.MoveTo(7);
  EXPECT_THAT(walk.Holding(), ElementsAre(1));
  ExpectPosition(walk, 1, 7, 0, 0);
}

// The work is that of the frames held, some 100,000, and not of a billion places without any.
TEST(PoseWalkTest, SegmentsWithoutFramesCostNothing) {
  HtrDocument document;
  HtrSegment* last = Add(document, "0", nullptr);
  for (int i = 1; i < 10'000; ++i) last = Add(document, std::to_string(i), last);
  for (int frame = 0; frame < 100'000; ++frame) last->AddFrame({1, 0, 0}, Vector3(), 1);
  PoseWalk walk(ListHierarchy(document), PoseParts::kPositionsAndRotations);
  std::size_t visited = 0;
  for (std::size_t frame = 0; frame < 100'000; ++frame) {
    walk.MoveTo(frame);
    visited += walk.Holding().size();
  }
  EXPECT_EQ(visited, 100'000U);
  ExpectPosition(walk, 9'999, 1, 0, 0);
}

// Against the positions that each joint's own way up to the root gives.
TEST(PoseWalkTest, TheExampleStandsInEveryFrameWhereItsFileSays) {
  HtrDocument document;
  ASSERT_EQ(orvane::ReadHtrFile(document, ORVANE_SOURCE_DIR "/examples/walk.htr", true), "");
  const auto hierarchy = ListHierarchy(document);
  ASSERT_EQ(hierarchy.size(), 21U);
  PoseWalk walk(hierarchy, PoseParts::kPositionsAndRotations);
  for (std::size_t frame = 0; frame < document.GetNumFrames(); ++frame) {
    walk.MoveTo(frame);
    for (std::size_t i = 0; i < hierarchy.size(); ++i) {
      const Vector3 expected = test::PositionOf(*hierarchy[i].segment, frame);
      ASSERT_NEAR(walk.PositionOf(i)[0], expected.x(), test::kPosition_mm);
      ASSERT_NEAR(walk.PositionOf(i)[1], expected.y(), test::kPosition_mm);
      ASSERT_NEAR(walk.PositionOf(i)[2], expected.z(), test::kPosition_mm);
    }
  }
}

// The recording's own documentation tells where two joints stand at frame 301.
TEST(PoseWalkTest, ARecordingComesOutWhereItsMakersSay) {
  const std::string file = ORVANE_SOURCE_DIR "/../shared/data/walk-31-segments.htr";
  if (!std::filesystem::exists(file)) GTEST_SKIP() << "no recording beside the sources";
  HtrDocument document;
  ASSERT_EQ(orvane::ReadHtrFile(document, file, true), "");
  const auto hierarchy = ListHierarchy(document);
  PoseWalk walk(hierarchy, PoseParts::kPositionsAndRotations);
  walk.MoveTo(300);
  for (std::size_t i = 0; i < hierarchy.size(); ++i) {
    const std::string name = hierarchy[i].segment->GetName();
    if (name == "LeftFoot") {
      EXPECT_NEAR(walk.PositionOf(i)[0], 60.2, 0.06);
      EXPECT_NEAR(walk.PositionOf(i)[1], 69.9, 0.06);
      EXPECT_NEAR(walk.PositionOf(i)[2], 780.1, 0.06);
    } else if (name == "RightHand") {
      EXPECT_NEAR(walk.PositionOf(i)[0], -195.3, 0.06);
      EXPECT_NEAR(walk.PositionOf(i)[1], 712.0, 0.06);
      EXPECT_NEAR(walk.PositionOf(i)[2], 729.1, 0.06);
    }
  }
}

}  // namespace
