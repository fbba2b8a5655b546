#include "plugin/export_htr/options_dialog.h"

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
constexpr int kSlider = IDC_SLIDER;
constexpr int kRange = IDC_RANGE;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOffset = IDC_OFFSET;
constexpr int kOk = IDC_OK;
constexpr int kAnimation = IDC_EXPORT_ANIMATION;
constexpr int kSavedPose = IDC_SAVED_POSE;
constexpr int kCurrentPose = IDC_CURRENT_POSE;
constexpr int kParentTransforms = IDC_PARENT_TRANSFORMS;

class ExportHTROptionsDialogTest
    : public test::OptionsDialogFixture<ExportHTROptionsDialog, ExportHTROptions> {
 protected:
  bool IsSaved() {
    return desk_.settings()
        .FindValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\ExportHTR", "Pose")
        .has_value();
  }
};

TEST_F(ExportHTROptionsDialogTest, ShowsTheDefaultsAtFirst) {
  Show([](host::ScriptedDialog& dialog) {
    EXPECT_TRUE(dialog.IsChecked(kSavedPose));
    EXPECT_FALSE(dialog.IsChecked(kCurrentPose));
    EXPECT_TRUE(dialog.IsChecked(kSlider));
    EXPECT_FALSE(dialog.IsChecked(kRange));
    EXPECT_TRUE(dialog.IsChecked(kAnimation));
    EXPECT_TRUE(dialog.IsChecked(kParentTransforms));
    EXPECT_EQ(dialog.Text(kFrom), "1");
    EXPECT_EQ(dialog.Text(kTo), "100");
    EXPECT_EQ(dialog.Text(kOffset), "0");
    EXPECT_EQ(dialog.Text(kGlobal), "1.000000");
    EXPECT_FALSE(dialog.IsEnabled(kFrom));
    EXPECT_FALSE(dialog.IsEnabled(kTo));
    for (const int control : {kOffset, kGlobal, kSlider, kRange, kAnimation, kParentTransforms}) {
      EXPECT_TRUE(dialog.IsEnabled(control)) << control;
    }
  });
}

TEST_F(ExportHTROptionsDialogTest, LoadsTheStoredOptionsBeforeItShowsThem) {
  {
    ExportHTROptions stored;
    stored.savedPose = stored.animate = stored.parentTransforms = false;
    stored.range = true;
    stored.frameOffset = -7;
    stored.Save();
  }
  Show([](host::ScriptedDialog& dialog) {
    EXPECT_TRUE(dialog.IsChecked(kCurrentPose));
    EXPECT_FALSE(dialog.IsChecked(kSavedPose));
    EXPECT_TRUE(dialog.IsChecked(kRange));
    EXPECT_FALSE(dialog.IsChecked(kSlider));
    EXPECT_TRUE(dialog.IsEnabled(kFrom));
    EXPECT_TRUE(dialog.IsEnabled(kTo));
    EXPECT_FALSE(dialog.IsChecked(kAnimation));
    EXPECT_FALSE(dialog.IsChecked(kParentTransforms));
    EXPECT_EQ(dialog.Text(kOffset), "-7");
  });
}

TEST_F(ExportHTROptionsDialogTest, AStoredScaleIsNotShownAgain) {
  {
    ExportHTROptions stored;
    stored.scaleFactor = 2.5;
    stored.Save();
  }
  Show([](host::ScriptedDialog& dialog) { EXPECT_EQ(dialog.Text(kGlobal), "1.000000"); });
}

TEST_F(ExportHTROptionsDialogTest, WithoutAnyRadioItIsTheRangeAndTheCurrentPose) {
  test::FakeDialog dialog;
  dialog[kFrom].text = "1";
  dialog[kTo].text = "2";
  dialog[kGlobal].text = "1";
  Dialog().Command(dialog, kOk);
  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_TRUE(options_.range);
  EXPECT_FALSE(options_.savedPose);
}

TEST_F(ExportHTROptionsDialogTest, OkTakesEverythingOverAndSavesIt) {
  EXPECT_TRUE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Click(kCurrentPose);
    dialog.Click(kAnimation);
    dialog.Click(kParentTransforms);
    dialog.Type(kFrom, "10");
    dialog.Type(kTo, "20");
    dialog.Type(kOffset, "-5");
    dialog.Type(kGlobal, "2.25");
    dialog.Click(kOk);
    EXPECT_TRUE(dialog.HasEnded());
  }));
  EXPECT_FALSE(options_.savedPose);
  EXPECT_TRUE(options_.range);
  EXPECT_FALSE(options_.animate);
  EXPECT_FALSE(options_.parentTransforms);
  EXPECT_EQ(options_.startFrame, 10);
  EXPECT_EQ(options_.endFrame, 20);
  EXPECT_EQ(options_.frameOffset, -5);
  EXPECT_EQ(options_.scaleFactor, 2.25);
  EXPECT_EQ(desk_.Messages(), "");

  ExportHTROptions stored;
  stored.Load();
  EXPECT_TRUE(stored.range);
  EXPECT_FALSE(stored.savedPose);
  EXPECT_EQ(stored.frameOffset, -5);
}

}  // namespace
}  // namespace orvane
