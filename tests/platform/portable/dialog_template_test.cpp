#include "platform/dialog_template.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "tests/support/resource_builder.h"

namespace platform {
namespace {

using test::ByteWriter;
using test::DialogBytes;
using test::ResourceBytes;

TEST(DialogTemplateTest, ReadsTitleAndSize) {
  const auto dialog = ParseDialogTemplate(DialogBytes(u"Caf\u00E9", {}));
  ASSERT_TRUE(dialog.has_value());
  EXPECT_EQ(dialog->title, "Caf\xC3\xA9");
  EXPECT_EQ(dialog->area.width, 200);
  EXPECT_EQ(dialog->area.height, 100);
  EXPECT_TRUE(dialog->controls.empty());
}

TEST(DialogTemplateTest, ReadsControlsInTheirOrder) {
  const auto dialog = ParseDialogTemplate(DialogBytes(
      u"", {{100, test::kButton, 0x50010000, u"&OK"}, {-1, test::kStatic, 0, u"Label"}}));
  ASSERT_TRUE(dialog.has_value());
  ASSERT_EQ(dialog->controls.size(), 2U);
  const ControlTemplate& button = dialog->controls[0];
  EXPECT_EQ(button.id, 100);
  EXPECT_EQ(button.text, "&OK");
  EXPECT_EQ(button.style, 0x50010000U);
  const ControlTemplate& label = dialog->controls[1];
  EXPECT_EQ(label.id, -1);
  EXPECT_EQ(label.text, "Label");
  EXPECT_EQ(label.area.x, 1);
  EXPECT_EQ(label.area.y, 10);
  EXPECT_EQ(label.area.width, 40);
  EXPECT_EQ(label.area.height, 12);
}

struct KindCase {
  unsigned window_class;
  std::uint32_t style;
  ControlKind kind;
};

TEST(DialogTemplateTest, TellsTheKindFromClassAndStyle) {
  const std::vector<KindCase> cases = {
      {test::kButton, 0x50010000, ControlKind::kPushButton},
      {test::kButton, 0x50010001, ControlKind::kPushButton},
      {test::kButton, 0x50010002, ControlKind::kCheckBox},
      {test::kButton, 0x50010003, ControlKind::kCheckBox},
      {test::kButton, 0x50010004, ControlKind::kRadioButton},
      {test::kButton, 0x50010009, ControlKind::kRadioButton},
      {test::kButton, 0x50000007, ControlKind::kGroupBox},
      {test::kButton, 0x5000000B, ControlKind::kOther},
      {test::kEdit, 0x50810080, ControlKind::kEdit},
      {test::kStatic, 0x50020000, ControlKind::kLabel},
      {test::kStatic, 0x5000000E, ControlKind::kImage},
      {test::kComboBox, 0x50000000, ControlKind::kOther},
  };
  for (const KindCase& test_case : cases) {
    const auto dialog =
        ParseDialogTemplate(DialogBytes(u"", {{1, test_case.window_class, test_case.style, u""}}));
    ASSERT_TRUE(dialog.has_value());
    EXPECT_EQ(dialog->controls[0].kind, test_case.kind)
        << "class " << test_case.window_class << ", style " << test_case.style;
  }
}

TEST(DialogTemplateTest, ReadsNamesNumbersAndCreationData) {
  ByteWriter bytes;
  bytes.U16(1).U16(0xFFFF).U32(0).U32(0).U32(0);  // no font
  bytes.U16(2).U16(0xFFFF).U16(0xFFFE).U16(20).U16(10);
  bytes.Number(9).Text(u"OwnClass").Text(u"T");
  bytes.Align4().U32(0).U32(0).U32(0).U16(1).U16(2).U16(3).U16(4).U32(5);
  bytes.Text(u"OwnControl").Number(112).U16(3).U8(1).U8(2).U8(3);
  bytes.Align4().U32(0).U32(0).U32(0).U16(1).U16(2).U16(3).U16(4).U32(6);
  bytes.Number(test::kStatic).Text(u"next").U16(0);

  const auto dialog = ParseDialogTemplate(bytes.Bytes());
  ASSERT_TRUE(dialog.has_value());
  EXPECT_EQ(dialog->area.x, -1);
  EXPECT_EQ(dialog->area.y, -2);
  EXPECT_EQ(dialog->title, "T");
  ASSERT_EQ(dialog->controls.size(), 2U);
  EXPECT_EQ(dialog->controls[0].kind, ControlKind::kOther);
  EXPECT_EQ(dialog->controls[0].text, "");
  EXPECT_EQ(dialog->controls[1].id, 6);
  EXPECT_EQ(dialog->controls[1].text, "next");
}

TEST(DialogTemplateTest, RefusesOtherKindsOfTemplates) {
  EXPECT_FALSE(ParseDialogTemplate({}).has_value());
  EXPECT_FALSE(ParseDialogTemplate(ByteWriter().U32(0x80C80048).U32(0).Bytes()).has_value());
  ResourceBytes later_version = DialogBytes(u"", {});
  later_version[0] = std::byte{2};
  EXPECT_FALSE(ParseDialogTemplate(later_version).has_value());
}

const ResourceBytes& WholeDialog() {
  static const ResourceBytes dialog = DialogBytes(
      u"Title",
      {{1, test::kButton, 3, u"check"}, {2, test::kEdit, 0, u""}, {3, test::kStatic, 0, u"x"}});
  return dialog;
}

TEST(DialogTemplateTest, RefusesATemplateCutAtAnyLength) {
  const ResourceBytes& whole = WholeDialog();
  ASSERT_TRUE(ParseDialogTemplate(whole).has_value());
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const ResourceBytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_FALSE(ParseDialogTemplate(cut).has_value()) << length;
  }
}

TEST(DialogTemplateTest, SurvivesEveryDamagedByte) {
  for (std::size_t i = 0; i < WholeDialog().size(); ++i) {
    for (const unsigned value : {0x00U, 0x01U, 0x7FU, 0x80U, 0xFFU}) {
      ResourceBytes damaged = WholeDialog();
      damaged[i] = static_cast<std::byte>(value);
      const auto dialog = ParseDialogTemplate(damaged);
      EXPECT_LE(dialog ? dialog->controls.size() : 0U, 3U);
    }
  }
}

}  // namespace
}  // namespace platform
