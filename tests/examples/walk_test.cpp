#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "examples/geometry.h"
#include "examples/walk_text.h"
#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"
#include "formats/text/files.h"
#include "tests/support/htr_skeleton_pose.h"

// What makes the example a walk: seen in the joints' positions, Y up, Z forward, X to the left.
namespace examples {
namespace {

using orvane::HtrDocument;
using orvane::ReadFileBytes;

constexpr std::size_t kFrames = 120;

class Walk : public ::testing::Test {
 protected:
  Walk() { EXPECT_EQ(orvane::ReadHtrFile(document_, kFile, true), ""); }

  Vector3 Joint(const std::string& name, std::size_t frame) {
    return test::PositionOf(*document_.FindSegment(name), frame);
  }
  Vector3 Tip(const std::string& name, std::size_t frame) {
    return test::TipOf(*document_.FindSegment(name), frame);
  }

  static constexpr const char* kFile = ORVANE_SOURCE_DIR "/examples/walk.htr";
  HtrDocument document_;
};

TEST_F(Walk, IsWhatItsGeneratorMakes) {
  const std::string made = WalkText();
  EXPECT_TRUE(ReadFileBytes(kFile) == made) << "run make_walk examples/walk.htr";
  EXPECT_EQ(std::count(made.begin(), made.end(), '\r'), std::count(made.begin(), made.end(), '\n'));
}

TEST_F(Walk, IsAWholeBodyForTwoSeconds) {
  EXPECT_EQ(orvane::FindFault(document_), "");
  EXPECT_EQ(document_.GetNumSegments(), 21);
  EXPECT_EQ(document_.GetNumFrames(), kFrames);
  EXPECT_EQ(document_.GetDataFrameRate(), 60);
  EXPECT_EQ(document_.GetCalibrationUnits(), 0u);
  for (const orvane::HtrSegment& segment : document_.segments()) {
    EXPECT_EQ(segment.GetNumFrames(), kFrames) << segment.GetName();
  }
}

TEST_F(Walk, GoesForward) {
  for (std::size_t frame = 1; frame < kFrames; ++frame) {
    EXPECT_NEAR(Joint("Hips", frame).z() - Joint("Hips", frame - 1).z(), 20, 1e-3);
    EXPECT_LT(std::abs(Joint("Hips", frame).x()), 30);
  }
}

TEST_F(Walk, CarriesTheHeadOnTop) {
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    const double top = Tip("Head", frame).y();
    EXPECT_GT(top, 1680);
    EXPECT_LT(top, 1780);
    for (const orvane::HtrSegment& segment : document_.segments()) {
      EXPECT_LE(test::TipOf(segment, frame).y(), top);
    }
  }
}

TEST_F(Walk, HasEachSideOnItsSide) {
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    for (const char* bone : {"Arm", "ForeArm", "Hand", "UpLeg", "Leg", "Foot"}) {
      EXPECT_GT(Joint(std::string("Left") + bone, frame).x(), 20) << bone;
      EXPECT_LT(Joint(std::string("Right") + bone, frame).x(), -20) << bone;
    }
  }
}

TEST_F(Walk, KeepsTheFeetOnOrAboveTheFloor) {
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    double lowest = 1000;
    for (const char* side : {"Left", "Right"}) {
      for (const Vector3& point :
           {Joint(std::string(side) + "Foot", frame), Tip(std::string(side) + "Foot", frame),
            Tip(std::string(side) + "Toe", frame)}) {
        EXPECT_GT(point.y(), 0);
        EXPECT_LT(point.y(), 250);
        lowest = std::min(lowest, point.y());
      }
    }
    EXPECT_LT(lowest, 30) << "no foot is down in frame " << frame;
  }
}

TEST_F(Walk, DoesNotSlideOnAFlatFoot) {
  int flat_frames = 0;
  for (const char* side : {"Left", "Right"}) {
    const std::string toe = std::string(side) + "Toe";
    for (std::size_t frame = 1; frame < kFrames; ++frame) {
      const bool flat = Joint(toe, frame).y() < 20.1 && Joint(toe, frame - 1).y() < 20.1;
      if (!flat) continue;
      ++flat_frames;
      EXPECT_NEAR(Joint(toe, frame).x(), Joint(toe, frame - 1).x(), 0.1);
      EXPECT_NEAR(Joint(toe, frame).z(), Joint(toe, frame - 1).z(), 0.1);
    }
  }
  EXPECT_GT(flat_frames, 100);
}

TEST_F(Walk, BendsTheKneesForwardAndTheElbowsToo) {
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    for (const char* side : {"Left", "Right"}) {
      const std::string s = side;
      // Ahead of the line from hip to ankle; behind the line from shoulder to wrist.
      const auto bend = [&](const std::string& from, const std::string& middle,
                            const std::string& to) {
        const Vector3 line = Difference(Joint(to, frame), Joint(from, frame));
        return Cross(line, Difference(Joint(middle, frame), Joint(from, frame))).x();
      };
      EXPECT_LT(bend(s + "UpLeg", s + "Leg", s + "Foot"), -1000);
      EXPECT_GT(bend(s + "Arm", s + "ForeArm", s + "Hand"), 1000);
    }
  }
}

TEST_F(Walk, SwingsArmsAgainstLegs) {
  int opposite = 0;
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    const double legs = Joint("LeftFoot", frame).z() - Joint("RightFoot", frame).z();
    const double arms = Joint("LeftHand", frame).z() - Joint("RightHand", frame).z();
    if (legs * arms < 0) ++opposite;
  }
  EXPECT_GT(opposite, 100);
}

TEST_F(Walk, MovesSmoothly) {
  for (const orvane::HtrSegment& segment : document_.segments()) {
    for (std::size_t frame = 2; frame < kFrames; ++frame) {
      const Vector3 before =
          Difference(test::TipOf(segment, frame - 1), test::TipOf(segment, frame - 2));
      const Vector3 after =
          Difference(test::TipOf(segment, frame), test::TipOf(segment, frame - 1));
      EXPECT_LT(Length(Difference(after, before)), 20) << segment.GetName() << ", frame " << frame;
    }
  }
}

TEST_F(Walk, RepeatsItselfAfterOneSecond) {
  for (const orvane::HtrSegment& segment : document_.segments()) {
    const Vector3 way = Difference(test::TipOf(segment, 60), test::TipOf(segment, 0));
    EXPECT_NEAR(way.x(), 0, 0.01) << segment.GetName();
    EXPECT_NEAR(way.y(), 0, 0.01) << segment.GetName();
    EXPECT_NEAR(way.z(), 1200, 0.01) << segment.GetName();
  }
}

}  // namespace
}  // namespace examples
