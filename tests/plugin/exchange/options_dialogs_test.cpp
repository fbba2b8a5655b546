#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "plugin/export_htr/options_dialog.h"
#include "plugin/import_htr/options_dialog.h"
#include "plugin/import_trc/options_dialog.h"
#include "plugin/resources/resource.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/options_dialog_fixture.h"

// What holds of all options dialogs. What is one dialog's own is tested with its class.

namespace orvane {
namespace {

constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kAll = IDC_ALL;  // "Slider" of the exporter
constexpr int kRange = IDC_RANGE;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOffset = IDC_OFFSET;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;
constexpr int kAbout = IDC_ABOUT;
constexpr int kSize = IDC_OBJECT_SIZE;

using Radios = std::vector<std::pair<int, int>>;

// What the three differ in.
struct ImportHTR {
  using Dialog = ImportHTROptionsDialog;
  using Options = ImportHTROptions;
  static constexpr int kId = 107;
  static constexpr char kName[] = "ImportHTR";
  static constexpr char kStoredValue[] = "Apply";
  static constexpr int kSwitch = IDC_APPLY;  // a radio that is not selected at first
  static bool IsSwitched(const Options& options) { return options.apply; }
  // Each pair with the one first that a new user finds selected.
  static Radios Pairs() { return {{1085, 1086}, {kAll, kRange}, {1051, 1052}}; }
  static std::vector<int> Ignored() { return {1, 2, 1017, 1019, 1050, 1104, 1140}; }
  static constexpr bool kAnswersAbout = true;
};

struct ImportTRC {
  using Dialog = ImportTRCOptionsDialog;
  using Options = ImportTRCOptions;
  static constexpr int kId = 108;
  static constexpr char kName[] = "ImportTRC";
  static constexpr char kStoredValue[] = "Apply";
  static constexpr int kSwitch = IDC_APPLY;
  static bool IsSwitched(const Options& options) { return options.apply; }
  static Radios Pairs() { return {{1085, 1086}, {kAll, kRange}, {1141, 1142}}; }
  static std::vector<int> Ignored() { return {1, 2, kAbout, 1050, 1140, 1143, 1144}; }
  static constexpr bool kAnswersAbout = false;
};

struct ExportHTR {
  using Dialog = ExportHTROptionsDialog;
  using Options = ExportHTROptions;
  static constexpr int kId = 126;
  static constexpr char kName[] = "ExportHTR";
  static constexpr char kStoredValue[] = "Pose";
  static constexpr int kSwitch = IDC_CURRENT_POSE;
  static bool IsSwitched(const Options& options) { return !options.savedPose; }
  static Radios Pairs() { return {{1106, 1107}, {kAll, kRange}}; }
  static std::vector<int> Ignored() { return {1, 2, kFrom, kTo, 1108, 1109}; }
  static constexpr bool kAnswersAbout = true;
};

template <typename Kind>
class OptionsDialogTest
    : public test::OptionsDialogFixture<typename Kind::Dialog, typename Kind::Options> {
 protected:
  bool IsSaved() {
    const std::string key = std::string("Software\\Orvane\\OrvaneFileIO\\Skelder\\") + Kind::kName;
    return this->desk_.settings().FindValue(key, Kind::kStoredValue).has_value();
  }

  // `text` as the dialog tells it.
  static std::string Error(const std::string& text) {
    return Kind::kName + (" Error: " + text) + "\n";
  }
};

struct NameOfKind {
  template <typename Kind>
  static std::string GetName(int /*index*/) {
    return Kind::kName;
  }
};
using Kinds = testing::Types<ImportHTR, ImportTRC, ExportHTR>;
TYPED_TEST_SUITE(OptionsDialogTest, Kinds, NameOfKind);

TYPED_TEST(OptionsDialogTest, IsShownAndCenteredOverItsParentAndTitled) {
  this->Show([this](host::ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Id(), TypeParam::kId);
    EXPECT_EQ(dialog.Title(), TypeParam::kName);
    EXPECT_EQ(dialog.Owner(), this->parent_.Handle());
    EXPECT_EQ(dialog.CenteredOver(), this->parent_.Handle());
    EXPECT_FALSE(dialog.Has(kAbout));
  });
}

TYPED_TEST(OptionsDialogTest, ADialogThatCannotBeCreatedCountsAsCanceled) {
  this->desk_.desktop().RefuseDialog(TypeParam::kId);
  EXPECT_FALSE(this->Dialog().Show());
}

TYPED_TEST(OptionsDialogTest, CancelEndsItAndSavesNothing) {
  EXPECT_FALSE(this->Show([](host::ScriptedDialog& dialog) {
    dialog.Click(TypeParam::kSwitch);
    dialog.Click(kCancel);
    EXPECT_TRUE(dialog.HasEnded());
  }));
  EXPECT_FALSE(this->IsSaved());
  EXPECT_FALSE(TypeParam::IsSwitched(this->options_));
}

TYPED_TEST(OptionsDialogTest, EscAndCloseBoxDoNothing) {
  this->Show([](host::ScriptedDialog& dialog) {
    dialog.PressEscape();
    EXPECT_FALSE(dialog.HasEnded());
  });
}

TYPED_TEST(OptionsDialogTest, OtherControlsAreIgnored) {
  test::FakeDialog dialog;
  auto handler = this->Dialog();
  handler.Initialize(dialog);
  for (const int id : TypeParam::Ignored()) handler.Command(dialog, id);
  EXPECT_FALSE(dialog.Result());
  EXPECT_EQ(this->desk_.Messages(), "");
}

TYPED_TEST(OptionsDialogTest, TheAboutControlShowsTheAboutBoxExceptForMarkers) {
  if (TypeParam::kAnswersAbout) {
    this->desk_.Expect([](host::ScriptedDialog& about) {
      EXPECT_EQ(about.Title(), "About...");
      about.Click(kOk);
    });
  }
  test::FakeDialog dialog;
  this->Dialog().Command(dialog, kAbout);
  EXPECT_FALSE(dialog.Result());
}

TYPED_TEST(OptionsDialogTest, RadiosSelectTheClickedOneOfTheirPair) {
  this->Show([](host::ScriptedDialog& dialog) {
    for (const auto& [radio, other] : TypeParam::Pairs()) {
      dialog.Click(other);
      EXPECT_TRUE(dialog.IsChecked(other));
      EXPECT_FALSE(dialog.IsChecked(radio));
      dialog.Click(radio);
      EXPECT_TRUE(dialog.IsChecked(radio));
      EXPECT_FALSE(dialog.IsChecked(other));
    }
  });
}

TYPED_TEST(OptionsDialogTest, OfEachPairOfRadiosOneIsSelectedWhenItOpens) {
  test::FakeDialog dialog;
  for (const auto& [chosen, other] : TypeParam::Pairs()) dialog[other].checked = true;
  auto handler = this->Dialog();
  handler.Initialize(dialog);
  for (const auto& [chosen, other] : TypeParam::Pairs()) {
    EXPECT_TRUE(dialog[chosen].checked) << chosen;
    EXPECT_FALSE(dialog[other].checked) << other;
  }
}

TYPED_TEST(OptionsDialogTest, RangeEnablesTheFramesAndAllDisablesThem) {
  this->Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    EXPECT_TRUE(dialog.IsEnabled(kFrom));
    EXPECT_TRUE(dialog.IsEnabled(kTo));
    dialog.Click(kAll);
    EXPECT_FALSE(dialog.IsEnabled(kFrom));
    EXPECT_FALSE(dialog.IsEnabled(kTo));
    EXPECT_TRUE(dialog.IsEnabled(kOffset));
  });
}

TYPED_TEST(OptionsDialogTest, ARefusedFrameIsPutBack) {
  this->Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "0");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kFrom), "1");
    dialog.Type(kTo, "500");
    dialog.Click(kOk);
    EXPECT_EQ(dialog.Text(kTo), "100");
  });
}

TYPED_TEST(OptionsDialogTest, AnAcceptedFrameNarrowsTheBoundForTheNextAttempt) {
  this->Show([this](host::ScriptedDialog& dialog) {
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
    EXPECT_EQ(this->desk_.Messages(),
              this->Error("Please choose a non-zero scale factor.") +
                  this->Error("Please choose a start frame equal to or greater than 10.") +
                  this->Error("Please choose an end frame less than or equal to 90."));
  });
}

TYPED_TEST(OptionsDialogTest, FramesAreReadEvenWhenAllIsChosen) {
  EXPECT_TRUE(this->Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "10");
    dialog.Click(kAll);
    dialog.Click(kOk);
  }));
  EXPECT_FALSE(this->options_.range);
  EXPECT_EQ(this->options_.startFrame, 10);
}

TYPED_TEST(OptionsDialogTest, FramesAreCheckedEvenWhenAllIsChosen) {
  EXPECT_FALSE(this->Show([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "0");
    dialog.Click(kAll);
    dialog.Click(kOk);
    EXPECT_FALSE(dialog.HasEnded());
  }));
  EXPECT_EQ(this->desk_.Messages(),
            this->Error("Please choose a start frame equal to or greater than 1."));
}

TYPED_TEST(OptionsDialogTest, AFileWithoutFramesIsRefusedUnderOneTitle) {
  this->options_.endFrame = 0;
  EXPECT_FALSE(this->Show([](host::ScriptedDialog& dialog) { dialog.Click(kOk); }));
  EXPECT_EQ(this->desk_.Messages(),
            "ImportHTR Error: Please choose a start frame that is less than the end frame.\n");
}

TYPED_TEST(OptionsDialogTest, WhatAFailedOkTookOverStaysAfterCancel) {
  EXPECT_FALSE(this->Show([](host::ScriptedDialog& dialog) {
    dialog.Click(TypeParam::kSwitch);
    dialog.Type(kOffset, "4");
    dialog.Type(kGlobal, "0");
    dialog.Click(kOk);
    dialog.Click(kCancel);
  }));
  EXPECT_TRUE(TypeParam::IsSwitched(this->options_));
  EXPECT_EQ(this->options_.frameOffset, 4);
  EXPECT_EQ(this->options_.scaleFactor, 0.0);
  EXPECT_FALSE(this->IsSaved());
}

TYPED_TEST(OptionsDialogTest, TextsAreReadTo255Characters) {
  EXPECT_TRUE(this->Show([](host::ScriptedDialog& dialog) {
    dialog.Type(kOffset, std::string(254, '0') + "12");
    dialog.Click(kOk);
  }));
  EXPECT_EQ(this->options_.frameOffset, 1);
}

// What the user types, and what the dialog says to it.
struct Attempt {
  const char* name;
  std::vector<std::pair<int, const char*>> typed;
  std::string message;  // empty: accepted
};

constexpr char kStart1[] = "Please choose a start frame equal to or greater than 1.";
constexpr char kEnd100[] = "Please choose an end frame less than or equal to 100.";
constexpr char kNoSize[] = "Please choose a non-zero size.";
constexpr char kNoScale[] = "Please choose a non-zero scale factor.";
constexpr char kOrder[] =
    "ImportHTR Error: Please choose a start frame that is less than the end frame.";

template <typename Kind>
class ValidationTest : public OptionsDialogTest<Kind>, public testing::WithParamInterface<Attempt> {
 public:
  static std::vector<Attempt> OfAll() {
    const std::string title = Kind::kName + std::string(" Error: ");
    return {{"UnchangedDefaults", {}, ""},
            {"StartBelowTheBound", {{kFrom, "0"}}, title + kStart1},
            {"StartThatIsNoNumberReadsAs0", {{kFrom, "abc"}}, title + kStart1},
            {"StartWithALeadingNumber", {{kFrom, " 2x"}}, ""},
            {"EndAboveTheBound", {{kTo, "101"}}, title + kEnd100},
            {"EndFarAboveTheBound", {{kTo, "99999999999"}}, title + kEnd100},
            {"AnyOffset", {{kOffset, "-99999"}}, ""},
            {"ScaleZero", {{kGlobal, "0.0"}}, title + kNoScale},
            {"ScaleThatIsNoNumber", {{kGlobal, "abc"}}, title + kNoScale},
            {"ScaleNegative", {{kGlobal, "-2"}}, ""},
            {"EndBelowStart", {{kFrom, "20"}, {kTo, "19"}}, kOrder},
            {"EndEqualToStart", {{kFrom, "20"}, {kTo, "20"}}, ""},
            // Only the first refusal is told.
            {"StartBeforeEnd", {{kFrom, "0"}, {kTo, "101"}}, title + kStart1},
            {"EndBeforeScale", {{kTo, "101"}, {kGlobal, "0"}}, title + kEnd100},
            {"ScaleBeforeOrder", {{kGlobal, "0"}, {kFrom, "20"}, {kTo, "19"}}, title + kNoScale}};
  }

  // Of the dialogs that have a size.
  static std::vector<Attempt> OfSizes() {
    const std::string title = Kind::kName + std::string(" Error: ");
    return {{"SizeZero", {{kSize, "0"}}, title + kNoSize},
            {"SizeThatIsNoNumber", {{kSize, "nan"}}, title + kNoSize},
            {"SizeTooSmallForSinglePrecision", {{kSize, "1e-60"}}, title + kNoSize},
            {"SizeNegative", {{kSize, "-1"}}, ""},
            // Only the first refusal is told.
            {"EndBeforeSize", {{kTo, "101"}, {kSize, "0"}}, title + kEnd100},
            {"SizeBeforeScale", {{kSize, "0"}, {kGlobal, "0"}}, title + kNoSize}};
  }

 protected:
  void Judge() {
    const Attempt& attempt = GetParam();
    const bool accepted = attempt.message.empty();
    const bool confirmed = this->Show([&](host::ScriptedDialog& dialog) {
      dialog.Click(kRange);
      for (const auto& [control, text] : attempt.typed) dialog.Type(control, text);
      dialog.Click(kOk);
      EXPECT_EQ(dialog.HasEnded(), accepted);
    });
    EXPECT_EQ(this->desk_.Messages(), accepted ? "" : attempt.message + "\n");
    EXPECT_EQ(confirmed, accepted);
    EXPECT_EQ(this->IsSaved(), accepted);
  }
};

const auto kAttemptName = [](const auto& attempt) { return attempt.param.name; };

using ImportHTRValidationTest = ValidationTest<ImportHTR>;
TEST_P(ImportHTRValidationTest, SaysWhatIsWrongOrAccepts) { Judge(); }
INSTANTIATE_TEST_SUITE_P(Rules, ImportHTRValidationTest,
                         testing::ValuesIn(ImportHTRValidationTest::OfAll()), kAttemptName);
INSTANTIATE_TEST_SUITE_P(Sizes, ImportHTRValidationTest,
                         testing::ValuesIn(ImportHTRValidationTest::OfSizes()), kAttemptName);

using ImportTRCValidationTest = ValidationTest<ImportTRC>;
TEST_P(ImportTRCValidationTest, SaysWhatIsWrongOrAccepts) { Judge(); }
INSTANTIATE_TEST_SUITE_P(Rules, ImportTRCValidationTest,
                         testing::ValuesIn(ImportTRCValidationTest::OfAll()), kAttemptName);
INSTANTIATE_TEST_SUITE_P(Sizes, ImportTRCValidationTest,
                         testing::ValuesIn(ImportTRCValidationTest::OfSizes()), kAttemptName);

using ExportValidationTest = ValidationTest<ExportHTR>;
TEST_P(ExportValidationTest, SaysWhatIsWrongOrAccepts) { Judge(); }
INSTANTIATE_TEST_SUITE_P(Rules, ExportValidationTest,
                         testing::ValuesIn(ExportValidationTest::OfAll()), kAttemptName);

}  // namespace
}  // namespace orvane
