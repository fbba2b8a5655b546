// Marker files imported through the loaded module, with a user at the dialog.

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"
#include "tests/support/trc_text.h"

namespace test {
namespace {

constexpr int kRange = IDC_RANGE;
constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kApply = IDC_APPLY;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOffset = IDC_OFFSET;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;
constexpr int kSize = IDC_OBJECT_SIZE;
constexpr int kSetFrameRate = IDC_SET_FRAME_RATE;
constexpr int kPoint = IDC_POINT;
constexpr int kSelectedOnly = IDC_SELECTED_ONLY;
constexpr int kRootNode = IDC_ROOT_NODE;

// Two markers in centimetres, from frame 11 on; the second drops out once.
TrcText TwoMarkers() {
  TrcText text{.markers = {"LFHD", "RFHD"},
               .frames = {{"1\t2\t3", "10\t20\t30"}, {"4\t5\t6", ""}, {"7\t8\t9", "40\t50\t60"}}};
  text.units = "cm";
  text.data_rate = "120";
  text.first_frame = 11;
  return text;
}

class ImportTrcModuleTest : public ModuleTest {
 protected:
  std::string File(const TrcText& text = TwoMarkers()) { return Write("head.trc", text.Text()); }

  // Where a node's keys are, in frames of the scene.
  std::vector<int> KeyFrames(const std::string& name) {
    const host::PositionController& positions = Node(name).Transform()->Position();
    std::vector<int> frames;
    for (std::size_t key = 0; key < positions.KeyCount(); ++key) {
      frames.push_back(positions.KeyTick(key) / application_.scene().Animation().TicksPerFrame());
    }
    return frames;
  }

  void ExpectAt(const std::string& name, int frame, const Point3& expected) {
    const TimeValue time = frame * application_.scene().Animation().TicksPerFrame();
    const Point3 found = Node(name).WorldTransform(time).GetRow(3);
    EXPECT_FLOAT_EQ(found.x, expected.x) << name << " at " << frame;
    EXPECT_FLOAT_EQ(found.y, expected.y) << name << " at " << frame;
    EXPECT_FLOAT_EQ(found.z, expected.z) << name << " at " << frame;
  }
};

using Frames = std::vector<int>;

TEST_F(ImportTrcModuleTest, MarkersMoveWhereTheFileSays) {
  EXPECT_EQ(Import(File(), PressOk), 1);
  EXPECT_TRUE(completed_);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(application_.scene().NodeCount(), 2U);
  // The file's (x, y, z) in centimetres is the host's (x, -z, y) in millimetres.
  EXPECT_EQ(KeyFrames("LFHD"), (Frames{11, 12, 13}));
  ExpectAt("LFHD", 11, Point3(10, -30, 20));
  ExpectAt("LFHD", 13, Point3(70, -90, 80));
  ExpectAt("RFHD", 12, Point3(0, 0, 0));
  const host::AnimationState& animation = application_.scene().Animation();
  EXPECT_EQ(animation.FrameRate(), 30);
  EXPECT_EQ(animation.Range().Start(), 160);
  EXPECT_EQ(animation.Range().End(), 4 * 160);
}

TEST_F(ImportTrcModuleTest, EveryControlOfTheDialogCounts) {
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     EXPECT_EQ(dialog.Title(), "ImportTRC");
                     EXPECT_EQ(dialog.Text(kFrom), "11");
                     EXPECT_EQ(dialog.Text(kTo), "13");
                     dialog.Click(kPoint);
                     dialog.Click(kRange);
                     dialog.Type(kFrom, "12");
                     dialog.Type(kOffset, "-10");
                     dialog.Type(kSize, "8");
                     dialog.Type(kGlobal, "0.5");
                     dialog.Click(kRootNode);
                     dialog.Click(kSetFrameRate);
                     dialog.Click(kOk);
                   }),
            1);
  EXPECT_TRUE(completed_);
  EXPECT_EQ(application_.scene().Animation().FrameRate(), 120);
  EXPECT_EQ(Node("LFHD").Parent(), &Node("TRCCloud"));
  EXPECT_EQ(Node("RFHD").Parent(), &Node("TRCCloud"));
  EXPECT_EQ(KeyFrames("LFHD"), (Frames{2, 3}));
  ExpectAt("LFHD", 2, Point3(20, -30, 25));
  // A point is scaled to a quarter of its size.
  EXPECT_FLOAT_EQ(Node("LFHD").WorldTransform(2 * 40).GetRow(0).x, 1.0F);
}

TEST_F(ImportTrcModuleTest, StoredChoicesOutliveTheModule) {
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     dialog.Click(kPoint);
                     dialog.Click(kRootNode);
                     dialog.Type(kSize, "2.5");
                     dialog.Type(kOffset, "5");
                     dialog.Click(kOk);
                   }),
            1);
  module_.reset();
  SetUp();
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     EXPECT_TRUE(dialog.IsChecked(kPoint));
                     EXPECT_TRUE(dialog.IsChecked(kRootNode));
                     EXPECT_EQ(dialog.Text(kSize), "2.500000");
                     EXPECT_EQ(dialog.Text(kOffset), "0");
                     dialog.Click(kCancel);
                   }),
            1);
  EXPECT_FALSE(completed_);
}

TEST_F(ImportTrcModuleTest, TrajectoriesAreAppliedToObjectsOfTheScene) {
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     dialog.Click(kRootNode);
                     dialog.Click(kOk);
                   }),
            1);
  TrcText later = TwoMarkers();
  later.first_frame = 21;
  application_.scene().Select(Node("TRCCloud"));
  EXPECT_EQ(Import(File(later),
                   [](host::ScriptedDialog& dialog) {
                     dialog.Click(kApply);
                     dialog.Click(kSelectedOnly);
                     dialog.Click(kOk);
                   }),
            1);
  EXPECT_TRUE(completed_);
  EXPECT_EQ(KeyFrames("LFHD"), (Frames{11, 12, 13, 21, 22, 23}));
  EXPECT_EQ(KeyFrames("RFHD"), (Frames{11, 12, 13, 21, 22, 23}));
}

TEST_F(ImportTrcModuleTest, ARefusalIsToldOnceAndAnswers1) {
  EXPECT_EQ(Import(Write("head.trc", "PathFileType,4,(X/Y/Z),head.trc\n")), 1);
  EXPECT_FALSE(completed_);
  EXPECT_EQ(desk_.Messages(),
            "ImportTRC Error: The file is does not have a compatible \"(X/Y/Z)\" header state\n");
  EXPECT_EQ(application_.scene().NodeCount(), 0U);
}

}  // namespace
}  // namespace test
