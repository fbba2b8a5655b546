#include "plugin/exchange/options_dialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

#include "host/desktop/top_level_window.h"
#include "platform/module.h"
#include "plugin/resources/resource.h"
#include "tests/support/desk.h"
#include "tests/support/fake_dialog.h"

namespace orvane {
namespace {

// Does what the test wants when it is loaded.
class AnyOptions final : public ExchangeOptions {
 public:
  AnyOptions() : ExchangeOptions("Any") {}

  std::function<void()> on_list;
  float size = 1.5F;

 private:
  void ListStored(StoredFields& /*fields*/) override {
    if (on_list) on_list();
  }
};

// Does what the test wants when a control is used.
class AnyOptionsDialog final : public OptionsDialog {
 public:
  AnyOptionsDialog(AnyOptions& options, MessageSink& messages, HWND parent)
      : OptionsDialog({.dialog_id = IDD_EXPORT_HTR,
                       .radio_pairs = {},
                       .check_boxes = {},
                       .size = &options.size,
                       .error_title = "Any Error",
                       .frame_order_title = "Order Error"},
                      options, messages, parent, platform::ModuleHandle()) {}

  std::function<void()> on_answer;
  std::string combination;

 private:
  void AnswerOwn(platform::Dialog& /*dialog*/, int /*control*/) override {
    if (on_answer) on_answer();
  }
  std::string CheckCombination() const override { return combination; }
};

class AnyOptionsDialogTest : public testing::Test {
 protected:
  void TearDown() override { desk_.desktop().RethrowFailure(); }

  void UserClicks(int control) {
    desk_.Expect([control](host::ScriptedDialog& dialog) {
      if (!dialog.HasEnded()) dialog.Click(control);
    });
  }

  test::Desk desk_;
  host::TopLevelWindow parent_;
  MessageSink messages_;
  AnyOptions options_;
  AnyOptionsDialog dialog_{options_, messages_, parent_.Handle()};
};

TEST_F(AnyOptionsDialogTest, PassesOnWhatIsThrownWhenItIsFilled) {
  options_.on_list = [] { throw std::bad_alloc(); };
  UserClicks(IDC_OK);
  EXPECT_THROW((void)dialog_.Show(), std::bad_alloc);
}

TEST_F(AnyOptionsDialogTest, PassesOnWhatAnAnswerThrows) {
  dialog_.on_answer = [] { throw 1; };
  UserClicks(IDC_SLIDER);
  EXPECT_THROW((void)dialog_.Show(), int);
  dialog_.on_answer = nullptr;
  UserClicks(IDC_CANCEL);
  EXPECT_FALSE(dialog_.Show()) << "once only";
}

// The controls of every options dialog, which show and change a record of any kind.
class OptionsControlsTest : public AnyOptionsDialogTest {
 protected:
  OptionsControlsTest() {
    options_.endFrame = 100;
    options_.frameOffset = -5;
    options_.scaleFactor = -0.25;
    dialog_.Initialize(controls_);
  }

  // What the user is told when he confirms these texts.
  std::string Confirm(const std::map<int, const char*>& typed) {
    for (const auto& [control, text] : typed) controls_[control].text = text;
    const std::size_t told = desk_.Messages().size();
    dialog_.Command(controls_, IDC_OK);
    return desk_.Messages().substr(told);
  }

  test::FakeDialog controls_;
};

using FrameRangeControlsTest = OptionsControlsTest;
using ScaleControlsTest = OptionsControlsTest;
using OptionsCombinationTest = OptionsControlsTest;

TEST_F(FrameRangeControlsTest, ShowTheNumbersOfTheRecord) {
  EXPECT_EQ(controls_[IDC_FROM].text, "1");
  EXPECT_EQ(controls_[IDC_TO].text, "100");
  EXPECT_EQ(controls_[IDC_OFFSET].text, "-5");
}

TEST_F(FrameRangeControlsTest, AreEnabledWithoutTheOffset) {
  EnableFrameRange(controls_, true);
  EXPECT_FALSE(controls_[IDC_FROM].enabled);
  EXPECT_FALSE(controls_[IDC_TO].enabled);
  EXPECT_TRUE(controls_[IDC_OFFSET].enabled);
  EnableFrameRange(controls_, false);
  EXPECT_TRUE(controls_[IDC_FROM].enabled);
  EXPECT_TRUE(controls_[IDC_TO].enabled);
}

TEST_F(FrameRangeControlsTest, AreTakenOver) {
  EXPECT_EQ(Confirm({{IDC_FROM, "10"}, {IDC_TO, "20x"}, {IDC_OFFSET, " 7"}}), "");
  EXPECT_EQ(options_.startFrame, 10);
  EXPECT_EQ(options_.endFrame, 20);
  EXPECT_EQ(options_.frameOffset, 7);
}

TEST_F(FrameRangeControlsTest, AStartBelowItsBoundIsPutBackAndEndsIt) {
  EXPECT_EQ(Confirm({{IDC_FROM, "0"}, {IDC_TO, "20"}, {IDC_OFFSET, "7"}}),
            "Any Error: Please choose a start frame equal to or greater than 1.\n");
  EXPECT_EQ(controls_[IDC_FROM].text, "1");
  EXPECT_EQ(options_.endFrame, 100);
  EXPECT_EQ(options_.frameOffset, -5);
}

TEST_F(FrameRangeControlsTest, AnEndAboveItsBoundIsPutBackAndTheStartStaysTaken) {
  EXPECT_EQ(Confirm({{IDC_FROM, "10"}, {IDC_TO, "101"}, {IDC_OFFSET, "7"}}),
            "Any Error: Please choose an end frame less than or equal to 100.\n");
  EXPECT_EQ(controls_[IDC_TO].text, "100");
  EXPECT_EQ(options_.startFrame, 10);
  EXPECT_EQ(options_.frameOffset, -5);
  EXPECT_EQ(Confirm({{IDC_FROM, "9"}}),
            "Any Error: Please choose a start frame equal to or greater than 10.\n");
}

TEST_F(FrameRangeControlsTest, AnEndBeforeTheStartIsForTheOrderToTell) {
  EXPECT_EQ(Confirm({{IDC_FROM, "20"}, {IDC_TO, "19"}, {IDC_OBJECT_SIZE, "3"}}),
            "Order Error: Please choose a start frame that is less than the end frame.\n");
  EXPECT_EQ(options_.size, 3.0F);
  EXPECT_FALSE(controls_.Result());
}

TEST_F(ScaleControlsTest, ShowTheFactorsOfTheRecord) {
  EXPECT_EQ(controls_[IDC_OBJECT_SIZE].text, "1.500000");
  EXPECT_EQ(controls_[IDC_GLOBAL_SCALE].text, "-0.250000");
}

TEST_F(ScaleControlsTest, AreTakenOver) {
  EXPECT_EQ(Confirm({{IDC_OBJECT_SIZE, "-2x"}, {IDC_GLOBAL_SCALE, " 3e1"}}), "");
  EXPECT_EQ(options_.size, -2.0F);
  EXPECT_EQ(options_.scaleFactor, 30.0);
}

TEST_F(ScaleControlsTest, ASizeOf0EndsIt) {
  for (const char* size : {"0", "1e-60", "big"}) {
    EXPECT_EQ(Confirm({{IDC_OBJECT_SIZE, size}, {IDC_GLOBAL_SCALE, "3"}}),
              "Any Error: Please choose a non-zero size.\n");
    EXPECT_EQ(options_.scaleFactor, -0.25);
  }
}

TEST_F(ScaleControlsTest, AScaleOf0EndsItAndTheSizeStaysTaken) {
  EXPECT_EQ(Confirm({{IDC_OBJECT_SIZE, "7"}, {IDC_GLOBAL_SCALE, "0"}}),
            "Any Error: Please choose a non-zero scale factor.\n");
  EXPECT_EQ(options_.size, 7.0F);
}

TEST_F(OptionsCombinationTest, IsCheckedLast) {
  dialog_.combination = "These do not go together.";
  EXPECT_EQ(Confirm({{IDC_FROM, "20"}, {IDC_TO, "19"}}),
            "Order Error: Please choose a start frame that is less than the end frame.\n");
  options_.startFrame = 1;
  EXPECT_EQ(Confirm({{IDC_FROM, "1"}}), "Any Error: These do not go together.\n");
  EXPECT_FALSE(controls_.Result());
  dialog_.combination = "";
  EXPECT_EQ(Confirm({}), "");
  EXPECT_EQ(controls_.Result(), 1);
}

}  // namespace
}  // namespace orvane
