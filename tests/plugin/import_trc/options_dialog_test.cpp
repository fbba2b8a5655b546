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
constexpr int kCancel = 1098;
constexpr int kAbout = 1103;
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

TEST_F(ImportTRCOptionsDialogTest, IsShownAndCentredOverItsParentAndTitled) {
  Show([this](host::ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Id(), 108);
    EXPECT_EQ(dialog.Title(), "ImportTRC");
    EXPECT_EQ(dialog.Owner(), parent_.Handle());
    EXPECT_EQ(dialog.CenteredOver(), parent_.Handle());
  });
}

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

TEST_F(ImportTRCOptionsDialogTest, RadiosSelectTheClickedOneOfTheirPair) {
  Show([](host::ScriptedDialog& dialog) {
    for (const auto& [radio, other] :
         {std::pair(kSphere, kPoint), std::pair(kCreate, kApply), std::pair(kAll, kRange)}) {
      dialog.Click(other);
      EXPECT_TRUE(dialog.IsChecked(other));
      EXPECT_FALSE(dialog.IsChecked(radio));
      dialog.Click(radio);
      EXPECT_TRUE(dialog.IsChecked(radio));
      EXPECT_FALSE(dialog.IsChecked(other));
    }
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

TEST_F(ImportTRCOptionsDialogTest, RangeEnablesTheFramesAndAllDisablesThem) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    EXPECT_TRUE(dialog.IsEnabled(kFrom));
    EXPECT_TRUE(dialog.IsEnabled(kTo));
    dialog.Click(kAll);
    EXPECT_FALSE(dialog.IsEnabled(kFrom));
    EXPECT_FALSE(dialog.IsEnabled(kTo));
  });
}

TEST_F(ImportTRCOptionsDialogTest, CancelEndsItAndSavesNothing) {
  EXPECT_FALSE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kApply);
    dialog.Click(kCancel);
    EXPECT_TRUE(dialog.HasEnded());
  }));
  EXPECT_FALSE(IsSaved());
  EXPECT_FALSE(options_.apply);
}

TEST_F(ImportTRCOptionsDialogTest, OfEachPairOfRadiosOneIsSelectedWhenItOpens) {
  test::FakeDialog dialog;
  for (const int radio : {kApply, kRange, kPoint}) dialog[radio].checked = true;
  ImportTRCOptionsDialog handler = Dialog();
  handler.Initialize(dialog);
  for (const auto& [chosen, other] :
       {std::pair(kCreate, kApply), std::pair(kAll, kRange), std::pair(kSphere, kPoint)}) {
    EXPECT_TRUE(dialog[chosen].checked) << chosen;
    EXPECT_FALSE(dialog[other].checked) << other;
  }
}

TEST_F(ImportTRCOptionsDialogTest, EscAndCloseBoxDoNothing) {
  Show([](host::ScriptedDialog& dialog) {
    dialog.PressEscape();
    EXPECT_FALSE(dialog.HasEnded());
  });
}

TEST_F(ImportTRCOptionsDialogTest, OtherControlsAreIgnored) {
  test::FakeDialog dialog;
  ImportTRCOptionsDialog handler = Dialog();
  handler.Initialize(dialog);
  for (const int id : {1, 2, kAbout, 1050, kSetFrameRate, kSelectedOnly, kRootNode}) {
    handler.Command(dialog, id);
  }
  EXPECT_FALSE(dialog.Result());
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(ImportTRCOptionsDialogTest, ADialogThatCannotBeCreatedCountsAsCancelled) {
  desk_.desktop().RefuseDialog(108);
  EXPECT_FALSE(Dialog().Show());
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

// What the user types, and what the dialog says to it.
struct Attempt {
  const char* name;
  std::vector<std::pair<int, const char*>> typed;
  const char* message;  // empty: accepted
  const char* title = "ImportTRC Error";
};

class ImportTRCValidationTest : public ImportTRCOptionsDialogTest,
                                public testing::WithParamInterface<Attempt> {};

TEST_P(ImportTRCValidationTest, SaysWhatIsWrongOrAccepts) {
  const Attempt& attempt = GetParam();
  const std::string expected =
      *attempt.message == '\0' ? "" : std::string(attempt.title) + ": " + attempt.message + "\n";
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

constexpr char kStart1[] = "Please choose a start frame equal to or greater than 1.";
constexpr char kEnd100[] = "Please choose an end frame less than or equal to 100.";
constexpr char kNoSize[] = "Please choose a non-zero size.";
constexpr char kNoScale[] = "Please choose a non-zero scale factor.";
constexpr char kOrder[] = "Please choose a start frame that is less than the end frame.";

INSTANTIATE_TEST_SUITE_P(
    Rules, ImportTRCValidationTest,
    testing::Values(
        Attempt{"UnchangedDefaults", {}, ""},
        Attempt{"StartBelowTheBound", {{kFrom, "0"}}, kStart1},
        Attempt{"StartThatIsNoNumberReadsAs0", {{kFrom, "abc"}}, kStart1},
        Attempt{"EndAboveTheBound", {{kTo, "101"}}, kEnd100},
        Attempt{"SizeZero", {{kSize, "0"}}, kNoSize},
        Attempt{"SizeThatIsNoNumber", {{kSize, "big"}}, kNoSize},
        Attempt{"SizeNegative", {{kSize, "-1"}}, ""},
        Attempt{"ScaleZero", {{kGlobal, "0.0"}}, kNoScale},
        Attempt{"ScaleNegative", {{kGlobal, "-2"}}, ""},
        Attempt{"EndBelowStart", {{kFrom, "20"}, {kTo, "19"}}, kOrder, "ImportHTR Error"},
        Attempt{"EndEqualToStart", {{kFrom, "20"}, {kTo, "20"}}, ""},
        // Only the first refusal is told.
        Attempt{"StartBeforeEnd", {{kFrom, "0"}, {kTo, "101"}}, kStart1},
        Attempt{"EndBeforeSize", {{kTo, "101"}, {kSize, "0"}}, kEnd100},
        Attempt{"SizeBeforeScale", {{kSize, "0"}, {kGlobal, "0"}}, kNoSize},
        Attempt{"ScaleBeforeOrder", {{kGlobal, "0"}, {kFrom, "20"}, {kTo, "19"}}, kNoScale}),
    [](const auto& attempt) { return attempt.param.name; });

TEST_F(ImportTRCOptionsDialogTest, ARefusedFrameIsPutBack) {
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

TEST_F(ImportTRCOptionsDialogTest, AnAcceptedFrameNarrowsTheBoundForTheNextAttempt) {
  Show([this](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "10");
    dialog.Type(kTo, "90");
    dialog.Type(kSize, "0");
    dialog.Click(kOk);
    dialog.Type(kFrom, "5");
    dialog.Type(kSize, "1");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kFrom), "10");
    dialog.Type(kTo, "95");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kTo), "90");
    EXPECT_EQ(desk_.Messages(),
              "ImportTRC Error: Please choose a non-zero size.\n"
              "ImportTRC Error: Please choose a start frame equal to or greater than 10.\n"
              "ImportTRC Error: Please choose an end frame less than or equal to 90.\n");
  });
}

TEST_F(ImportTRCOptionsDialogTest, FramesAreReadAndCheckedEvenWhenAllIsChosen) {
  EXPECT_FALSE(Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "0");
    dialog.Click(kAll);
    dialog.Click(kOk);
    EXPECT_FALSE(dialog.HasEnded());
  }));
  EXPECT_EQ(desk_.Messages(),
            "ImportTRC Error: Please choose a start frame equal to or greater than 1.\n");
}

}  // namespace
}  // namespace orvane
