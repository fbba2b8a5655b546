// Motion files imported and exported again through the loaded module: what comes back is what went
// in, within what the host's single precision allows.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <random>

#include "formats/htr/reader.h"
#include "formats/math/rotation_matrix3.h"
#include "host/gltf/reader.h"
#include "host/gltf/writer.h"
#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"
#include "tests/support/files.h"
#include "tests/support/htr_skeleton_pose.h"
#include "tests/support/htr_text.h"
#include "tests/support/tolerances.h"

namespace test {
namespace {

using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::Vector3;

constexpr int kTcb = IDC_TCB;
constexpr int kCreate = IDC_CREATE;
constexpr int kApply = IDC_APPLY;
constexpr int kOk = IDC_OK;
constexpr int kCurrentPose = IDC_CURRENT_POSE;
constexpr int kSetFrameRate = IDC_SET_FRAME_RATE;

// A random skeleton with a motion of two frames.
class RandomMotion {
 public:
  explicit RandomMotion(unsigned seed) : random_(seed) {}

  HtrText File(int bones) {
    HtrText file;
    file.frame_rate = 60;
    for (int i = 0; i < bones; ++i) {
      HtrText::Segment segment;
      segment.name = "Bone" + std::to_string(i);
      if (i > 0) segment.parent = "Bone" + std::to_string(Below(i));
      segment.base = Translation(500) + " " + Rotation() + " " + Number(Between(1, 1000));
      file.segments.push_back(segment);
    }
    SetFrames(file);
    return file;
  }

  // Gives every segment another motion.
  void SetFrames(HtrText& file) {
    for (HtrText::Segment& segment : file.segments) {
      segment.frames = {Translation(50) + " " + Rotation(), Translation(50) + " " + Rotation()};
    }
  }

 private:
  int Below(int end) { return std::uniform_int_distribution<>(0, end - 1)(random_); }
  double Between(double least, double most) {
    return std::uniform_real_distribution<>(least, most)(random_);
  }

  static std::string Number(double value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.6f", value);
    return text.data();
  }
  std::string Translation(double most) {
    return Number(Between(-most, most)) + " " + Number(Between(-most, most)) + " " +
           Number(Between(-most, most));
  }

  // One in three stands where axes coincide or change places.
  std::string Rotation() {
    const bool upright = Below(3) == 0;
    const auto angle = [&] { return upright ? 90.0 * (Below(5) - 2) : Between(-180, 180); };
    return Number(angle()) + " " + Number(angle()) + " " + Number(angle());
  }

  std::mt19937 random_;
};

double Distance(const Vector3& a, const Vector3& b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y(), a.z() - b.z());
}

// In degrees, for small ones.
double AngleBetween(const orvane::RotationMatrix3& a, const orvane::RotationMatrix3& b) {
  double squares = 0;
  for (unsigned row = 0; row < 3; ++row) {
    for (unsigned column = 0; column < 3; ++column) {
      squares += std::pow(a.Element(row, column) - b.Element(row, column), 2);
    }
  }
  return std::sqrt(squares / 2) * 180 / 3.14159265358979323846;
}

struct Differences {
  double position_mm = 0;
  double farthest_mm = 0;  // from the origin, of any joint
  double angle_deg = 0;
};

Differences Compare(HtrDocument& before, HtrDocument& after) {
  Differences largest;
  for (const HtrSegment& segment : before.segments()) {
    const HtrSegment& other = *after.FindSegment(segment.GetName());
    for (std::size_t frame = 0; frame < before.GetNumFrames(); ++frame) {
      const Vector3 position = PositionOf(segment, frame);
      largest.farthest_mm = std::max(largest.farthest_mm, Distance(position, Vector3()));
      largest.position_mm =
          std::max(largest.position_mm, Distance(position, PositionOf(other, frame)));
      largest.angle_deg =
          std::max(largest.angle_deg,
                   AngleBetween(orvane::RotationMatrix3(segment.GetFrameOrientation(frame)),
                                orvane::RotationMatrix3(other.GetFrameOrientation(frame))));
    }
  }
  return largest;
}

struct Way {
  const char* name;
  bool apply;
  bool tcb;
  bool current_pose;
};

class RoundTripTest : public ModuleTest, public testing::WithParamInterface<Way> {
 protected:
  void ImportFile(const HtrText& file, bool apply) {
    const std::string path = Write("in.htr", file.Text());
    EXPECT_EQ(Import(path,
                     [&](host::ScriptedDialog& dialog) {
                       dialog.Click(apply ? kApply : kCreate);
                       if (GetParam().tcb) dialog.Click(kTcb);
                       if (!dialog.IsChecked(kSetFrameRate)) dialog.Click(kSetFrameRate);
                       dialog.Click(kOk);
                     }),
              1);
    EXPECT_TRUE(completed_);
  }

  void ExpectSame(const HtrText& file) {
    const std::string path = folder_.File("out.htr");
    application_.scene().ClearSelection();
    application_.scene().Select(Node("Bone0"));
    EXPECT_EQ(Export(path,
                     [](host::ScriptedDialog& dialog) {
                       if (GetParam().current_pose) dialog.Click(kCurrentPose);
                       dialog.Click(kOk);
                     }),
              1);
    EXPECT_TRUE(completed_);
    EXPECT_EQ(desk_.Messages(), "");

    HtrDocument before;
    HtrDocument after;
    ASSERT_EQ(orvane::ReadHtrBytes(before, file.Text(), true), "");
    ASSERT_EQ(orvane::ReadHtrFile(after, path, true), "");
    ASSERT_EQ(after.GetNumSegments(), before.GetNumSegments());
    EXPECT_EQ(after.GetNumFrames(), before.GetNumFrames());
    EXPECT_EQ(after.GetStartFrame(), before.GetStartFrame());
    EXPECT_EQ(after.GetDataFrameRate(), before.GetDataFrameRate());
    const Differences largest = Compare(before, after);
    EXPECT_LE(largest.position_mm,
              std::max(kRoundTrip_mm, kRoundTripOfFarthest * largest.farthest_mm))
        << largest.farthest_mm;
    EXPECT_LE(largest.angle_deg, kRoundTrip_deg);
  }
};

TEST_P(RoundTripTest, WhatComesBackIsWhatWentIn) {
  for (unsigned seed = 0; seed < 6; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomMotion random(seed);
    HtrText file = random.File(seed < 2 ? 200 : 1 + 17 * static_cast<int>(seed));
    ImportFile(file, false);
    if (GetParam().apply) {
      random.SetFrames(file);
      application_.scene().ClearSelection();
      application_.scene().Select(Node("Bone0"));
      ImportFile(file, true);
    }
    ExpectSame(file);
    if (HasFailure()) return;
    // The next one must not find the bones of this one.
    std::vector<host::Node*> groups = application_.scene().Root().Children();
    while (!groups.empty()) {
      for (host::Node* group : groups) application_.scene().DeleteNode(group);
      groups = application_.scene().Root().Children();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Ways, RoundTripTest,
                         testing::Values(Way{"CreateEulerSaved", false, false, false},
                                         Way{"CreateEulerCurrent", false, false, true},
                                         Way{"CreateTcbSaved", false, true, false},
                                         Way{"CreateTcbCurrent", false, true, true},
                                         Way{"ApplyEulerSaved", true, false, false},
                                         Way{"ApplyEulerCurrent", true, false, true},
                                         Way{"ApplyTcbSaved", true, true, false},
                                         Way{"ApplyTcbCurrent", true, true, true}),
                         [](const auto& way) { return way.param.name; });

using ExportedSceneTest = ModuleTest;

TEST_F(ExportedSceneTest, ASceneFromItsFileGivesTheSameBytesAsTheSceneInMemory) {
  ASSERT_EQ(Import(Write("in.htr", RandomMotion(7).File(30).Text()), PressOk), 1);
  application_.scene().Select(Node("Bone0"));
  ASSERT_EQ(Export(folder_.File("memory.htr"), PressOk), 1);
  const host::gltf::WrittenScene written = host::gltf::WriteScene(application_.scene(), {});
  ASSERT_EQ(written.refusal, "");

  host::Application restored;
  ASSERT_EQ(host::gltf::ReadScene(written.bytes, restored.scene()), "");
  module_.reset();
  std::string refusal;
  module_ = host::Module::Load(ModulePath(), {restored, &desk_.settings()}, refusal);
  ASSERT_NE(module_, nullptr) << refusal;
  ASSERT_EQ(Export(folder_.File("file.htr"), PressOk), 1);
  EXPECT_EQ(ReadFile(folder_.File("file.htr")), ReadFile(folder_.File("memory.htr")));
  EXPECT_TRUE(host::UnloadModule(std::move(module_)).IsClean());
}

}  // namespace
}  // namespace test
