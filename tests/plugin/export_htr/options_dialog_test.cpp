#include "plugin/export_htr/options_dialog.h"

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
constexpr int kSlider = 1067;
constexpr int kRange = 1068;
constexpr int kGlobal = 1088;
constexpr int kOffset = 1089;
constexpr int kOk = 1097;
constexpr int kCancel = 1098;
constexpr int kAbout = 1103;
constexpr int kAnimation = 1105;
constexpr int kSavedPose = 1106;
constexpr int kCurrentPose = 1107;
constexpr int kParentTransforms = 1109;

class ExportHTROptionsDialogTest
    : public test::OptionsDialogFixture<ExportHTROptionsDialog, ExportHTROptions> {
 protected:
  bool IsSaved() {
    return desk_.settings()
        .FindValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\ExportHTR", "Pose")
        .has_value();
  }
};

TEST_F(ExportHTROptionsDialogTest, IsShownAndCentredOverItsParentAndTitled) {
  Show([this](host::ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Id(), 126);
    EXPECT_EQ(dialog.Title(), "ExportHTR");
    EXPECT_EQ(dialog.Owner(), parent_.Handle());
    EXPECT_EQ(dialog.CenteredOver(), parent_.Handle());
    EXPECT_FALSE(dialog.Has(kAbout));
  });
}

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

TEST_F(ExportHTROptionsDialogTest, RadiosSelectTheClickedOneOfTheirPair) {
  Show([](host::ScriptedDialog& dialog) {
    const struct {
      int radio;
      int other;
    } pairs[] = {{kSavedPose, kCurrentPose}, {kSlider, kRange}};
    for (const auto& pair : pairs) {
      dialog.Click(pair.other);
      EXPECT_TRUE(dialog.IsChecked(pair.other));
      EXPECT_FALSE(dialog.IsChecked(pair.radio));
      dialog.Click(pair.radio);
      EXPECT_TRUE(dialog.IsChecked(pair.radio));
      EXPECT_FALSE(dialog.IsChecked(pair.other));
    }
  });
}

TEST_F(ExportHTROptionsDialogTest, OfEachPairOfRadiosOneIsSelectedWhenItOpens) {
  test::FakeDialog dialog;
  for (const int radio : {kCurrentPose, kRange}) dialog[radio].checked = true;
  ExportHTROptionsDialog handler = Dialog();
  handler.Initialize(dialog);
  for (const auto& [chosen, other] :
       {std::pair(kSavedPose, kCurrentPose), std::pair(kSlider, kRange)}) {
    EXPECT_TRUE(dialog[chosen].checked) << chosen;
    EXPECT_FALSE(dialog[other].checked) << other;
  }
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

TEST_F(ExportHTROptionsDialogTest, RangeEnablesTheFramesAndSliderDisablesThem) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    EXPECT_TRUE(dialog.IsEnabled(kFrom));
    EXPECT_TRUE(dialog.IsEnabled(kTo));
    dialog.Click(kSlider);
    EXPECT_FALSE(dialog.IsEnabled(kFrom));
    EXPECT_FALSE(dialog.IsEnabled(kTo));
  });
}

TEST_F(ExportHTROptionsDialogTest, CancelEndsItAndSavesNothing) {
  EXPECT_FALSE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kCurrentPose);
    dialog.Click(kCancel);
    EXPECT_TRUE(dialog.HasEnded());
  }));
  EXPECT_FALSE(IsSaved());
  EXPECT_TRUE(options_.savedPose);
}

TEST_F(ExportHTROptionsDialogTest, EscAndCloseBoxDoNothing) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.PressEscape();
    EXPECT_FALSE(dialog.HasEnded());
  });
}

TEST_F(ExportHTROptionsDialogTest, IdsOutsideItsRangeAreIgnored) {
  test::FakeDialog dialog;
  ExportHTROptionsDialog handler = Dialog();
  handler.Initialize(dialog);
  for (const int id : {1, 2, kFrom, kTo, 1108, kParentTransforms}) handler.Command(dialog, id);
  EXPECT_FALSE(dialog.Result());
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(ExportHTROptionsDialogTest, TheAboutControlShowsTheAboutBox) {
  desk_.Expect([](host::ScriptedDialog& about) {
    EXPECT_EQ(about.Title(), "About...");
    about.Click(kOk);
  });
  test::FakeDialog dialog;
  Dialog().Command(dialog, kAbout);
  EXPECT_FALSE(dialog.Result());
}

TEST_F(ExportHTROptionsDialogTest, ADialogThatCannotBeCreatedCountsAsCancelled) {
  desk_.desktop().RefuseDialog(126);
  EXPECT_FALSE(Dialog().Show());
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

// What the user types, and what the dialog says to it.
struct Attempt {
  const char* name;
  std::vector<std::pair<int, const char*>> typed;
  const char* message;  // empty: accepted
};

class ExportValidationTest : public ExportHTROptionsDialogTest,
                             public testing::WithParamInterface<Attempt> {};

TEST_P(ExportValidationTest, SaysWhatIsWrongOrAccepts) {
  const Attempt& attempt = GetParam();
  const std::string expected = *attempt.message == '\0' ? "" : std::string(attempt.message) + "\n";
  const bool confirmed = Show([&](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    for (const auto& [control, text] : attempt.typed) dialog.Type(control, text);
    dialog.Click(kOk);
    EXPECT_EQ(dialog.HasEnded(), expected.empty());
  });
  EXPECT_EQ(desk_.Messages(), expected);
  EXPECT_EQ(confirmed, expected.empty());
  EXPECT_EQ(IsSaved(), expected.empty());
}

constexpr char kStart1[] =
    "ExportHTR Error: Please choose a start frame equal to or greater than 1.";
constexpr char kEnd100[] = "ExportHTR Error: Please choose an end frame less than or equal to 100.";
constexpr char kScale[] = "ExportHTR Error: Please choose a non-zero scale factor.";

// Under the importer's title.
constexpr char kOrder[] =
    "ImportHTR Error: Please choose a start frame that is less than the end frame.";

INSTANTIATE_TEST_SUITE_P(
    Rules, ExportValidationTest,
    testing::Values(Attempt{"UnchangedDefaults", {}, ""},
                    Attempt{"StartBelowTheBound", {{kFrom, "0"}}, kStart1},
                    Attempt{"StartThatIsNoNumberReadsAs0", {{kFrom, "abc"}}, kStart1},
                    Attempt{"StartWithALeadingNumber", {{kFrom, " 2x"}}, ""},
                    Attempt{"EndAboveTheBound", {{kTo, "101"}}, kEnd100},
                    Attempt{"ScaleZero", {{kGlobal, "0.0"}}, kScale},
                    Attempt{"ScaleThatIsNoNumber", {{kGlobal, "abc"}}, kScale},
                    Attempt{"ScaleNegative", {{kGlobal, "-2"}}, ""},
                    Attempt{"EndBelowStart", {{kFrom, "20"}, {kTo, "19"}}, kOrder},
                    Attempt{"EndEqualToStart", {{kFrom, "20"}, {kTo, "20"}}, ""},
                    Attempt{"AnyOffset", {{kOffset, "-99999"}}, ""},
                    // Only the first refusal is told.
                    Attempt{"StartBeforeEnd", {{kFrom, "0"}, {kTo, "101"}}, kStart1},
                    Attempt{"EndBeforeScale", {{kTo, "101"}, {kGlobal, "0"}}, kEnd100},
                    Attempt{
                        "ScaleBeforeOrder", {{kGlobal, "0"}, {kFrom, "20"}, {kTo, "19"}}, kScale}),
    [](const auto& attempt) { return attempt.param.name; });

TEST_F(ExportHTROptionsDialogTest, ARefusedFrameIsPutBack) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "0");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kFrom), "1");
    dialog.Type(kTo, "500");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kTo), "100");
  });
}

TEST_F(ExportHTROptionsDialogTest, AnAcceptedFrameNarrowsTheBoundForTheNextAttempt) {
  Show([this](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "10");
    dialog.Type(kTo, "90");
    dialog.Type(kGlobal, "0");
    dialog.Click(kOk);
    dialog.Type(kFrom, "5");
    dialog.Type(kGlobal, "1");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kFrom), "10");
    dialog.Type(kTo, "95");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kTo), "90");
    EXPECT_EQ(desk_.Messages(),
              "ExportHTR Error: Please choose a non-zero scale factor.\n"
              "ExportHTR Error: Please choose a start frame equal to or greater than 10.\n"
              "ExportHTR Error: Please choose an end frame less than or equal to 90.\n");
  });
}

TEST_F(ExportHTROptionsDialogTest, FramesAreReadEvenWhenSliderIsChosen) {
  EXPECT_TRUE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "10");
    dialog.Click(kSlider);
    dialog.Click(kOk);
  }));
  EXPECT_FALSE(options_.range);
  EXPECT_EQ(options_.startFrame, 10);
}

TEST_F(ExportHTROptionsDialogTest, WhatAFailedOkTookOverStaysAfterCancel) {
  EXPECT_FALSE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kCurrentPose);
    dialog.Type(kOffset, "4");
    dialog.Type(kGlobal, "0");
    dialog.Click(kOk);
    dialog.Click(kCancel);
  }));
  EXPECT_FALSE(options_.savedPose);
  EXPECT_EQ(options_.frameOffset, 4);
  EXPECT_EQ(options_.scaleFactor, 0.0);
  EXPECT_FALSE(IsSaved());
}

}  // namespace
}  // namespace orvane
