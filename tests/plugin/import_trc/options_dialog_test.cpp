#include "plugin/import_trc/options_dialog.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/module.h"
#include "plugin/resources/resource.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/options_dialog_fixture.h"

namespace orvane {
namespace {

constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kAll = IDC_ALL;
constexpr int kRange = IDC_RANGE;
constexpr int kCreate = IDC_CREATE;
constexpr int kApply = IDC_APPLY;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOffset = IDC_OFFSET;
constexpr int kOk = IDC_OK;
constexpr int kSize = IDC_OBJECT_SIZE;
constexpr int kSetFrameRate = IDC_SET_FRAME_RATE;
constexpr int kSphere = IDC_SPHERE;
constexpr int kPoint = IDC_POINT;
constexpr int kSelectedOnly = IDC_SELECTED_ONLY;
constexpr int kRootNode = IDC_ROOT_NODE;

class ImportTRCOptionsDialogTest
    : public test::OptionsDialogFixture<ImportTRCOptionsDialog, ImportTRCOptions> {
 protected:
  bool IsSaved() {
    return desk_.settings()
        .FindValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\ImportTRC", "Apply")
        .has_value();
  }
};

// The controls that each of "Create" and "Apply" enables.
void ExpectCreationEnabled(const host::ScriptedDialog& dialog, bool enabled) {
  for (const int control : {kSphere, kPoint, kSize, kRootNode}) {
    EXPECT_EQ(dialog.IsEnabled(control), enabled) << control;
  }
  EXPECT_EQ(dialog.IsEnabled(kSelectedOnly), !enabled);
}

TEST_F(ImportTRCOptionsDialogTest, ShowsTheDefaultsAtFirst) {
  Show([](host::ScriptedDialog& dialog) {
    for (const int chosen : {kCreate, kAll, kSphere}) EXPECT_TRUE(dialog.IsChecked(chosen));
    for (const int other : {kApply, kRange, kPoint}) EXPECT_FALSE(dialog.IsChecked(other));
    for (const int box : {kSelectedOnly, kRootNode, kSetFrameRate}) {
      EXPECT_FALSE(dialog.IsChecked(box));
    }
    EXPECT_EQ(dialog.Text(kFrom), "1");
    EXPECT_EQ(dialog.Text(kTo), "100");
    EXPECT_EQ(dialog.Text(kOffset), "0");
    EXPECT_EQ(dialog.Text(kSize), "1.000000");
    EXPECT_EQ(dialog.Text(kGlobal), "1.000000");
    EXPECT_FALSE(dialog.IsEnabled(kFrom));
    EXPECT_FALSE(dialog.IsEnabled(kTo));
    ExpectCreationEnabled(dialog, true);
  });
}

TEST_F(ImportTRCOptionsDialogTest, LoadsTheStoredOptionsBeforeItShowsThem) {
  {
    ImportTRCOptions stored;
    stored.apply = stored.range = stored.selectedOnly = true;
    stored.rootNode = stored.setFrameRate = true;
    stored.geometry = false;
    stored.size = 2.5F;
    stored.scaleFactor = -0.25;
    stored.Save();
  }
  options_.frameOffset = -7;
  Show([](host::ScriptedDialog& dialog) {
    for (const int chosen : {kApply, kRange, kPoint}) EXPECT_TRUE(dialog.IsChecked(chosen));
    for (const int other : {kCreate, kAll, kSphere}) EXPECT_FALSE(dialog.IsChecked(other));
    for (const int box : {kSelectedOnly, kRootNode, kSetFrameRate}) {
      EXPECT_TRUE(dialog.IsChecked(box));
    }
    EXPECT_EQ(dialog.Text(kOffset), "-7");
    EXPECT_EQ(dialog.Text(kSize), "2.500000");
    EXPECT_EQ(dialog.Text(kGlobal), "-0.250000");
    EXPECT_TRUE(dialog.IsEnabled(kFrom));
    EXPECT_TRUE(dialog.IsEnabled(kTo));
    ExpectCreationEnabled(dialog, false);
  });
}

TEST_F(ImportTRCOptionsDialogTest, CreateAndApplyEnableWhatTheyNeed) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kApply);
    ExpectCreationEnabled(dialog, false);
    dialog.Click(kCreate);
    ExpectCreationEnabled(dialog, true);
  });
}

TEST_F(ImportTRCOptionsDialogTest, OkTakesEverythingOverAndSavesIt) {
  EXPECT_TRUE(Show([](host::ScriptedDialog& dialog) {
    for (const int control : {kPoint, kRootNode, kSetFrameRate, kRange}) dialog.Click(control);
    dialog.Type(kFrom, "10");
    dialog.Type(kTo, "20");
    dialog.Type(kOffset, "-5");
    dialog.Type(kSize, "0.5");
    dialog.Type(kGlobal, "2.25");
    dialog.Click(kApply);
    dialog.Click(kSelectedOnly);
    dialog.Click(kOk);
    EXPECT_TRUE(dialog.HasEnded());
  }));
  EXPECT_TRUE(options_.apply);
  EXPECT_TRUE(options_.range);
  EXPECT_FALSE(options_.geometry);
  EXPECT_TRUE(options_.selectedOnly);
  // A disabled box counts all the same.
  EXPECT_TRUE(options_.rootNode);
  EXPECT_TRUE(options_.setFrameRate);
  EXPECT_EQ(options_.startFrame, 10);
  EXPECT_EQ(options_.endFrame, 20);
  EXPECT_EQ(options_.frameOffset, -5);
  EXPECT_EQ(options_.size, 0.5F);
  EXPECT_EQ(options_.scaleFactor, 2.25);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_TRUE(IsSaved());
}

}  // namespace
}  // namespace orvane
