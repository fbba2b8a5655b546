#include "plugin/import_htr/options_dialog.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/module.h"
#include "plugin/resources/resource.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/options_dialog_fixture.h"

namespace orvane {
namespace {

constexpr int kBasePosition = IDC_BASE_POSITION;
constexpr int kEndEffectors = IDC_END_EFFECTORS;
constexpr int kSpare = IDC_SPARE;
constexpr int kEuler = IDC_EULER;
constexpr int kTcb = IDC_TCB;
constexpr int kAnimation = IDC_ANIMATION;
constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kAll = IDC_ALL;
constexpr int kRange = IDC_RANGE;
constexpr int kCreate = IDC_CREATE;
constexpr int kApply = IDC_APPLY;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOffset = IDC_OFFSET;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;
constexpr int kAbout = IDC_ABOUT;
constexpr int kSegmentSize = IDC_OBJECT_SIZE;
constexpr int kSetFrameRate = IDC_SET_FRAME_RATE;

class ImportHTROptionsDialogTest
    : public test::OptionsDialogFixture<ImportHTROptionsDialog, ImportHTROptions> {
 protected:
  bool IsSaved() {
    return desk_.settings()
        .FindValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\ImportHTR", "Apply")
        .has_value();
  }
};

TEST_F(ImportHTROptionsDialogTest, HasItsControlsAndGroups) {
  Show([](host::ScriptedDialog& dialog) {
    const struct {
      int id;
      const char* text;
    } controls[] = {{kCreate, "Create"},
                    {kApply, "Apply"},
                    {kEndEffectors, "End Effectors"},
                    {kBasePosition, "Base Position"},
                    {kAnimation, "Animation"},
                    {kEuler, "Euler"},
                    {kTcb, "TCB"},
                    {kAll, "All"},
                    {kRange, "Range"},
                    {kSetFrameRate, "Set Frame Rate"},
                    {kOk, "&OK"},
                    {kCancel, "&Cancel"}};
    for (const auto& control : controls) {
      EXPECT_TRUE(dialog.Has(control.id)) << control.text;
      EXPECT_EQ(dialog.Text(control.id), control.text);
    }
    for (const int edit : {kSegmentSize, kFrom, kTo, kOffset, kGlobal}) {
      EXPECT_TRUE(dialog.Has(edit)) << edit;
    }
    EXPECT_FALSE(dialog.Has(kSpare));
    EXPECT_FALSE(dialog.Has(kAbout));
    for (const char* group :
         {"Skeleton", "Keyframe Options", "Rotation Controller", "Time Options", "Scale"}) {
      bool found = false;
      for (const host::DialogControl& control : dialog.Controls()) {
        found =
            found || (control.text == group && control.kind == platform::ControlKind::kGroupBox);
      }
      EXPECT_TRUE(found) << group;
    }
  });
}

TEST_F(ImportHTROptionsDialogTest, ShowsTheDefaultsAtFirst) {
  Show([](host::ScriptedDialog& dialog) {
    EXPECT_TRUE(dialog.IsChecked(kCreate));
    EXPECT_FALSE(dialog.IsChecked(kApply));
    EXPECT_TRUE(dialog.IsChecked(kAll));
    EXPECT_FALSE(dialog.IsChecked(kRange));
    EXPECT_TRUE(dialog.IsChecked(kEuler));
    EXPECT_FALSE(dialog.IsChecked(kTcb));
    EXPECT_TRUE(dialog.IsChecked(kAnimation));
    EXPECT_FALSE(dialog.IsChecked(kBasePosition));
    EXPECT_FALSE(dialog.IsChecked(kEndEffectors));
    EXPECT_FALSE(dialog.IsChecked(kSetFrameRate));
    EXPECT_EQ(dialog.Text(kFrom), "1");
    EXPECT_EQ(dialog.Text(kTo), "100");
    EXPECT_EQ(dialog.Text(kOffset), "0");
    EXPECT_EQ(dialog.Text(kSegmentSize), "1.000000");
    EXPECT_EQ(dialog.Text(kGlobal), "1.000000");
    EXPECT_FALSE(dialog.IsEnabled(kFrom));
    EXPECT_FALSE(dialog.IsEnabled(kTo));
    for (const int control : {kOffset, kSegmentSize, kEndEffectors, kGlobal, kAll, kRange}) {
      EXPECT_TRUE(dialog.IsEnabled(control)) << control;
    }
  });
}

TEST_F(ImportHTROptionsDialogTest, LoadsTheStoredOptionsBeforeItShowsThem) {
  {
    ImportHTROptions stored;
    stored.apply = stored.range = stored.keyBasePosition = true;
    stored.endEffectors = stored.setFrameRate = true;
    stored.animate = false;
    stored.rotationController = 2;
    stored.size = 2.5F;
    stored.scaleFactor = -0.25;
    stored.Save();
  }
  options_.frameOffset = -7;
  Show([](host::ScriptedDialog& dialog) {
    EXPECT_TRUE(dialog.IsChecked(kApply));
    EXPECT_FALSE(dialog.IsChecked(kCreate));
    EXPECT_FALSE(dialog.IsEnabled(kEndEffectors));
    EXPECT_FALSE(dialog.IsEnabled(kSegmentSize));
    EXPECT_TRUE(dialog.IsChecked(kRange));
    EXPECT_FALSE(dialog.IsChecked(kAll));
    EXPECT_TRUE(dialog.IsEnabled(kFrom));
    EXPECT_TRUE(dialog.IsEnabled(kTo));
    EXPECT_TRUE(dialog.IsChecked(kTcb));
    EXPECT_FALSE(dialog.IsChecked(kEuler));
    EXPECT_FALSE(dialog.IsChecked(kAnimation));
    EXPECT_TRUE(dialog.IsChecked(kBasePosition));
    EXPECT_TRUE(dialog.IsChecked(kEndEffectors));
    EXPECT_TRUE(dialog.IsChecked(kSetFrameRate));
    EXPECT_EQ(dialog.Text(kOffset), "-7");
    EXPECT_EQ(dialog.Text(kSegmentSize), "2.500000");
    EXPECT_EQ(dialog.Text(kGlobal), "-0.250000");
    // Opening leaves these alone whatever Animation says.
    EXPECT_TRUE(dialog.IsEnabled(kAll));
    EXPECT_TRUE(dialog.IsEnabled(kRange));
  });
}

TEST_F(ImportHTROptionsDialogTest, AnimationEnablesAllAndRangeButNotTheirFrames) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Click(kAnimation);
    EXPECT_FALSE(dialog.IsEnabled(kAll));
    EXPECT_FALSE(dialog.IsEnabled(kRange));
    EXPECT_TRUE(dialog.IsEnabled(kFrom));
    EXPECT_TRUE(dialog.IsEnabled(kTo));
    dialog.Click(kAnimation);
    EXPECT_TRUE(dialog.IsEnabled(kAll));
    EXPECT_TRUE(dialog.IsEnabled(kRange));
  });
}

TEST_F(ImportHTROptionsDialogTest, ApplyDisablesWhatOnlyCreationNeeds) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kApply);
    EXPECT_FALSE(dialog.IsEnabled(kEndEffectors));
    EXPECT_FALSE(dialog.IsEnabled(kSegmentSize));
    dialog.Click(kCreate);
    EXPECT_TRUE(dialog.IsEnabled(kEndEffectors));
    EXPECT_TRUE(dialog.IsEnabled(kSegmentSize));
  });
}

TEST_F(ImportHTROptionsDialogTest, TheSpareControlGoesWithEndEffectors) {
  test::FakeDialog dialog;
  ImportHTROptionsDialog handler = Dialog();
  handler.Initialize(dialog);
  EXPECT_FALSE(dialog[kSpare].checked);
  EXPECT_TRUE(dialog[kSpare].enabled);
  handler.Command(dialog, kApply);
  EXPECT_FALSE(dialog[kSpare].enabled);
  handler.Command(dialog, kCreate);
  EXPECT_TRUE(dialog[kSpare].enabled);

  options_.apply = true;
  handler.Initialize(dialog);
  EXPECT_FALSE(dialog[kSpare].enabled);
}

TEST_F(ImportHTROptionsDialogTest, OkTakesEverythingOverAndSavesIt) {
  EXPECT_TRUE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Click(kTcb);
    dialog.Click(kBasePosition);
    dialog.Click(kEndEffectors);
    dialog.Click(kSetFrameRate);
    dialog.Type(kFrom, "10");
    dialog.Type(kTo, "20");
    dialog.Type(kOffset, "-5");
    dialog.Type(kSegmentSize, "0.5");
    dialog.Type(kGlobal, "2.25");
    dialog.Click(kOk);
    EXPECT_TRUE(dialog.HasEnded());
  }));
  EXPECT_FALSE(options_.apply);
  EXPECT_TRUE(options_.range);
  EXPECT_EQ(options_.rotationController, 1);
  EXPECT_TRUE(options_.animate);
  EXPECT_TRUE(options_.keyBasePosition);
  EXPECT_TRUE(options_.endEffectors);
  EXPECT_FALSE(options_.spare);
  EXPECT_TRUE(options_.setFrameRate);
  EXPECT_EQ(options_.startFrame, 10);
  EXPECT_EQ(options_.endFrame, 20);
  EXPECT_EQ(options_.frameOffset, -5);
  EXPECT_EQ(options_.size, 0.5F);
  EXPECT_EQ(options_.scaleFactor, 2.25);
  EXPECT_EQ(desk_.Messages(), "");

  ImportHTROptions stored;
  stored.Load();
  EXPECT_TRUE(stored.range);
  EXPECT_TRUE(stored.keyBasePosition);
  EXPECT_EQ(stored.size, 0.5F);
  EXPECT_EQ(stored.scaleFactor, 2.25);
}

// What the user types and clicks, and what the dialog says to it.
struct Attempt {
  const char* name;
  std::vector<std::pair<int, const char*>> typed;
  std::vector<int> clicked;
  const char* message;  // empty: accepted
};

class ValidationTest : public ImportHTROptionsDialogTest,
                       public testing::WithParamInterface<Attempt> {};

TEST_P(ValidationTest, SaysWhatIsWrongOrAccepts) {
  const Attempt& attempt = GetParam();
  const std::string expected =
      *attempt.message == '\0' ? "" : std::string("ImportHTR Error: ") + attempt.message + "\n";
  const bool confirmed = Show([&](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    for (const int control : attempt.clicked) dialog.Click(control);
    for (const auto& [control, text] : attempt.typed) dialog.Type(control, text);
    dialog.Click(kOk);
    EXPECT_EQ(dialog.HasEnded(), expected.empty());
  });
  EXPECT_EQ(desk_.Messages(), expected);
  EXPECT_EQ(confirmed, expected.empty());
  EXPECT_EQ(IsSaved(), expected.empty());
}

constexpr char kOrder[] = "Please choose a start frame that is less than the end frame.";
constexpr char kNothing[] =
    "Please choose either Base Position, Animation, or both when in apply mode.";

INSTANTIATE_TEST_SUITE_P(
    Rules, ValidationTest,
    testing::Values(
        Attempt{"ApplyWithNothingToKey", {}, {kApply, kAnimation}, kNothing},
        Attempt{"CreateWithNothingToKey", {}, {kAnimation}, ""},
        Attempt{"ApplyWithBasePosition", {}, {kApply, kAnimation, kBasePosition}, ""},
        Attempt{"ApplyWithAnimation", {}, {kApply}, ""},
        // Only the first refusal is told.
        Attempt{"OrderBeforeApply", {{kFrom, "20"}, {kTo, "19"}}, {kApply, kAnimation}, kOrder}),
    [](const auto& attempt) { return attempt.param.name; });

TEST_F(ImportHTROptionsDialogTest, ARotationControllerOfAFailedOkStaysAfterCancel) {
  EXPECT_FALSE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kTcb);
    dialog.Type(kGlobal, "0");
    dialog.Click(kOk);
    dialog.Click(kCancel);
  }));
  EXPECT_EQ(options_.rotationController, 1);
}

TEST_F(ImportHTROptionsDialogTest, StoredNumbersThatAreNoneAreShownAndRefused) {
  {
    ImportHTROptions stored;
    stored.size = std::numeric_limits<float>::quiet_NaN();
    stored.scaleFactor = std::numeric_limits<double>::quiet_NaN();
    stored.Save();
  }
  EXPECT_FALSE(Show([](host::ScriptedDialog& dialog) { dialog.Click(kOk); }));
  EXPECT_EQ(desk_.Messages(), "ImportHTR Error: Please choose a non-zero size.\n");
}

}  // namespace
}  // namespace orvane
