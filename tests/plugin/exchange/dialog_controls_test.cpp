#include "plugin/exchange/dialog_controls.h"

#include <gtest/gtest.h>

#include "tests/support/fake_dialog.h"

namespace orvane {
namespace {

TEST(DialogControlsTest, AreEnabledAndDisabledTogether) {
  test::FakeDialog dialog;
  EnableControls(dialog, {1, 2}, false);
  EXPECT_FALSE(dialog[1].enabled);
  EXPECT_FALSE(dialog[2].enabled);
  EXPECT_TRUE(dialog[3].enabled);
  EnableControls(dialog, {2}, true);
  EXPECT_TRUE(dialog[2].enabled);
}

TEST(DialogControlsTest, OneRadioOfAPairIsSelected) {
  test::FakeDialog dialog;
  dialog[2].checked = true;
  SelectRadio(dialog, 1, 2);
  EXPECT_TRUE(dialog[1].checked);
  EXPECT_FALSE(dialog[2].checked);
}

TEST(DialogControlsTest, AChoiceOfTwoRadiosSelectsTheOneAndNotTheOther) {
  test::FakeDialog dialog;
  dialog[2].checked = true;
  ShowChoice(dialog, true, 1, 2);
  EXPECT_TRUE(dialog[1].checked);
  EXPECT_FALSE(dialog[2].checked);
  ShowChoice(dialog, false, 1, 2);
  EXPECT_FALSE(dialog[1].checked);
  EXPECT_TRUE(dialog[2].checked);
}

TEST(DialogControlsTest, TextsAreCutAt255Characters) {
  test::FakeDialog dialog;
  dialog[1].text = std::string(300, 'x');
  EXPECT_EQ(ControlText(dialog, 1), std::string(255, 'x'));
  EXPECT_EQ(ControlText(dialog, 2), "");
}

}  // namespace
}  // namespace orvane
