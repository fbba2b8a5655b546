// Motion files imported through the loaded module, with a user at the dialog.

#include <gtest/gtest.h>

#include "host/base/heap_control.h"
#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"
#include "tests/support/htr_text.h"

namespace test {
namespace {

constexpr int kEndEffectors = IDC_END_EFFECTORS;
constexpr int kTcb = IDC_TCB;
constexpr int kApply = IDC_APPLY;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOffset = IDC_OFFSET;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;

HtrText TwoBones() {
  HtrText file;
  file.segments = {{"Hips", "GLOBAL", "1 2 3 0 0 0 10", {"0 0 0 0 0 0", "0 0 5 0 0 0"}},
                   {"Leg", "Hips", "0 4 0 0 0 90 20", {"0 0 0 0 0 0", "0 0 0 0 0 0"}}};
  return file;
}

class ImportTest : public ModuleTest {
 protected:
  std::string File() { return Write("walk.htr", TwoBones().Text()); }

  void ExpectWorldPosition(const std::string& name, TimeValue time, const Point3& expected) {
    const Point3 found = Node(name).WorldTransform(time).GetRow(3);
    EXPECT_NEAR(found.x, expected.x, 1e-5) << name;
    EXPECT_NEAR(found.y, expected.y, 1e-5) << name;
    EXPECT_NEAR(found.z, expected.z, 1e-5) << name;
  }
};

TEST_F(ImportTest, BonesStandAndMoveWhereTheFileSays) {
  EXPECT_EQ(Import(File(), PressOk), 1);
  EXPECT_TRUE(completed_);
  // The file's (x, y, z) is the host's (x, -z, y); the leg stands 4 above the hips.
  ExpectWorldPosition("Hips", 160, Point3(1, -3, 2));
  ExpectWorldPosition("Leg", 160, Point3(1, -3, 6));
  ExpectWorldPosition("Hips", 320, Point3(1, -8, 2));
  ExpectWorldPosition("Leg", 320, Point3(1, -8, 6));
  // A quarter turn about the file's Z lays the leg, which was upright, along -X.
  const Point3 along = Node("Leg").WorldTransform(160).GetRow(0);
  EXPECT_NEAR(along.x, -1, 1e-6);
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(ImportTest, ChoicesAreRememberedForTheNextImport) {
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     dialog.Click(kEndEffectors);
                     dialog.Click(kTcb);
                     dialog.Type(kGlobal, "2");
                     dialog.Type(kOffset, "5");
                     dialog.Click(kOk);
                   }),
            1);
  EXPECT_EQ(Node("Leg").Transform()->Rotation().ClassID(), kTcbRotationClass);
  EXPECT_EQ(Node("Leg_Effector").Parent(), &Node("Leg"));
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     EXPECT_TRUE(dialog.IsChecked(kEndEffectors));
                     EXPECT_TRUE(dialog.IsChecked(kTcb));
                     EXPECT_EQ(dialog.Text(kGlobal), "2.000000");
                     EXPECT_EQ(dialog.Text(kOffset), "5");
                     dialog.Click(kCancel);
                   }),
            1);
  EXPECT_FALSE(completed_);
}

TEST_F(ImportTest, StoredChoicesOutliveTheModule) {
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     dialog.Type(kGlobal, "2");
                     dialog.Type(kOffset, "5");
                     dialog.Click(kOk);
                   }),
            1);
  module_.reset();
  SetUp();
  EXPECT_EQ(Import(File(),
                   [](host::ScriptedDialog& dialog) {
                     EXPECT_EQ(dialog.Text(kGlobal), "2.000000");
                     EXPECT_EQ(dialog.Text(kOffset), "0");
                     dialog.Click(kCancel);
                   }),
            1);
}

TEST_F(ImportTest, AMotionIsAppliedToASkeletonOfTheScene) {
  EXPECT_EQ(Import(File(), PressOk), 1);
  HtrText other = TwoBones();
  other.segments[0].frames = {"100 0 0 0 0 0", "100 0 0 0 0 0"};
  application_.scene().Select(Node("Hips"));
  EXPECT_EQ(Import(Write("other.htr", other.Text()),
                   [](host::ScriptedDialog& dialog) {
                     dialog.Click(kApply);
                     dialog.Click(kOk);
                   }),
            1);
  EXPECT_TRUE(completed_);
  EXPECT_EQ(application_.scene().NodeCount(), 3U);
  ExpectWorldPosition("Hips", 160, Point3(101, -3, 2));
}

TEST_F(ImportTest, FailuresAreToldAndReturn0) {
  EXPECT_EQ(Import(Write("empty.htr", "[Header]\nFileType text\n")), 0);
  EXPECT_FALSE(completed_);
  EXPECT_EQ(desk_.Messages(),
            "ImportHTR Error: The file does not have a compatible \"FileType\" header state\n");
}

TEST_F(ImportTest, NoAllocationOfTheHostsIsIndispensable) {
  const std::string path = File();
  for (std::size_t n = 1; n <= 8; ++n) {
    host::RefuseAllocation(n);
    static_cast<void>(module_->Import(path, true));
    host::RefuseAllocation(0);
    EXPECT_FALSE(application_.progress().IsOpen()) << n;
  }
}

}  // namespace
}  // namespace test
