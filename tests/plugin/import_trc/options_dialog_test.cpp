#include "plugin/import_trc/options_dialog.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/module.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/options_dialog_fixture.h"

namespace orvane {
namespace {

constexpr int kFrom = 1065;
constexpr int kTo = 1066;
constexpr int kAll = 1067;
constexpr int kRange = 1068;
constexpr int kCreate = 1085;
constexpr int kApply = 1086;
constexpr int kGlobal = 1088;
constexpr int kOffset = 1089;
constexpr int kOk = 1097;
constexpr int kSize = 1104;
constexpr int kSetFrameRate = 1140;
constexpr int kSphere = 1141;
constexpr int kPoint = 1142;
constexpr int kSelectedOnly = 1143;
constexpr int kRootNode = 1144;

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
