// Whole bodies, imported through the module: the example, and a real recording. That is not ours,
// so it is not in the project: its test runs where it lies beside the checkout, or where
// ORVANE_RECORDINGS says.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "formats/htr/reader.h"
#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"
#include "tests/support/htr_skeleton_pose.h"
#include "tests/support/tolerances.h"

namespace test {
namespace {

std::filesystem::path Recording(const char* name) {
  const char* folder = std::getenv("ORVANE_RECORDINGS");
  if (folder != nullptr) return std::filesystem::path(folder) / name;
  return std::filesystem::path(ORVANE_SOURCE_DIR).parent_path() / "shared/data" / name;
}

class RecordingTest : public ModuleTest {
 protected:
  // Where a bone stands at a frame, in the axes of the file (Y up).
  Point3 FilePosition(const std::string& name, int frame) {
    const TimeValue time = frame * application_.scene().Animation().TicksPerFrame();
    const Point3 position = Node(name).WorldTransform(time).GetRow(3);
    return Point3(position.x, position.z, -position.y);
  }

  void ExpectAt(const std::string& name, int frame, const Point3& expected,
                double tolerance = kRecordedPosition_mm) {
    const Point3 found = FilePosition(name, frame);
    EXPECT_NEAR(found.x, expected.x, tolerance) << name << " in frame " << frame;
    EXPECT_NEAR(found.y, expected.y, tolerance) << name << " in frame " << frame;
    EXPECT_NEAR(found.z, expected.z, tolerance) << name << " in frame " << frame;
  }
};

Point3 Single(const orvane::Vector3& vector) {
  return Point3(static_cast<float>(vector.x()), static_cast<float>(vector.y()),
                static_cast<float>(vector.z()));
}

TEST_F(RecordingTest, TheExamplePutsEveryJointWhereItsFileSays) {
  const std::string path = ORVANE_SOURCE_DIR "/examples/walk.htr";
  orvane::HtrDocument document;
  ASSERT_EQ(orvane::ReadHtrFile(document, path, true), "");
  EXPECT_EQ(Import(path,
                   [](host::ScriptedDialog& dialog) {
                     dialog.Click(IDC_SET_FRAME_RATE);  // the frame rate of the file
                     PressOk(dialog);
                   }),
            1);
  EXPECT_TRUE(completed_);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(application_.scene().NodeCount(), 22U);
  EXPECT_EQ(application_.scene().Animation().FrameRate(), 60);
  for (const int frame : {1, 37, 120}) {
    for (const orvane::HtrSegment& segment : document.segments()) {
      const orvane::Vector3 expected = PositionOf(segment, static_cast<std::size_t>(frame - 1));
      ExpectAt(segment.GetName(), frame, Single(expected), kSinglePosition);
    }
  }
}

TEST_F(RecordingTest, TheWalkPutsFeetAndHandsWhereTheyWere) {
  const std::filesystem::path path = Recording("walk-31-segments.htr");
  if (!std::filesystem::exists(path)) GTEST_SKIP() << path << " is not here";
  EXPECT_EQ(Import(path.string(),
                   [](host::ScriptedDialog& dialog) {
                     dialog.Click(IDC_SET_FRAME_RATE);  // the frame rate of the file
                     PressOk(dialog);
                   }),
            1);
  EXPECT_TRUE(completed_);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(application_.scene().NodeCount(), 32U);
  EXPECT_EQ(application_.scene().Animation().FrameRate(), 120);
  ExpectAt("LeftFoot", 301, Point3(60.2F, 69.9F, 780.1F));
  ExpectAt("RightHand", 301, Point3(-195.3F, 712.0F, 729.1F));
}

}  // namespace
}  // namespace test
