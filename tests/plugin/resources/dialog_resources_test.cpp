#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/module.h"
#include "platform/portable/module_resources.h"
#include "platform/portable/resource_file.h"

namespace {

using platform::ControlKind;
using platform::ControlTemplate;
using platform::DialogRectangle;
using platform::DialogTemplate;

DialogTemplate Dialog(unsigned int id) {
  const auto file = platform::ResourceFileOf(platform::ModuleHandle());
  return platform::FindDialog(file, id).value_or(DialogTemplate());
}

bool Contains(const DialogRectangle& outer, const DialogRectangle& inner) {
  return inner.x >= outer.x && inner.y >= outer.y &&
         inner.x + inner.width <= outer.x + outer.width &&
         inner.y + inner.height <= outer.y + outer.height;
}

bool Overlap(const DialogRectangle& a, const DialogRectangle& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

// The text of the group box around a control; empty when there is none.
std::string GroupOf(const DialogTemplate& dialog, const ControlTemplate& control) {
  for (const ControlTemplate& box : dialog.controls) {
    if (box.kind == ControlKind::kGroupBox && Contains(box.area, control.area)) return box.text;
  }
  return "";
}

// What the user reads beside an edit control: the label to its left in the same row.
std::string LabelOf(const DialogTemplate& dialog, const ControlTemplate& edit) {
  for (const ControlTemplate& label : dialog.controls) {
    if (label.kind == ControlKind::kLabel && label.area.x + label.area.width <= edit.area.x &&
        label.area.y >= edit.area.y && label.area.y < edit.area.y + edit.area.height &&
        GroupOf(dialog, label) == GroupOf(dialog, edit)) {
      return label.text;
    }
  }
  return "";
}

// A control as a list of the user's choices would describe it.
struct Entry {
  int id;
  ControlKind kind;
  std::string text;
  std::string group;
};

bool operator==(const Entry& a, const Entry& b) {
  return a.id == b.id && a.kind == b.kind && a.text == b.text && a.group == b.group;
}

void PrintTo(const Entry& entry, std::ostream* out) {
  *out << entry.id << " \"" << entry.text << "\" in \"" << entry.group << "\", kind "
       << static_cast<int>(entry.kind);
}

std::vector<Entry> NumberedControls(const DialogTemplate& dialog) {
  std::vector<Entry> entries;
  for (const ControlTemplate& control : dialog.controls) {
    if (control.id == -1) continue;
    const bool is_edit = control.kind == ControlKind::kEdit;
    entries.push_back({control.id, control.kind, is_edit ? LabelOf(dialog, control) : control.text,
                       GroupOf(dialog, control)});
  }
  return entries;
}

std::vector<std::string> Groups(const DialogTemplate& dialog) {
  std::vector<std::string> groups;
  for (const ControlTemplate& control : dialog.controls) {
    if (control.kind == ControlKind::kGroupBox) groups.push_back(control.text);
  }
  return groups;
}

// At which radio buttons the tab key stops; that is where a group of them begins.
std::map<int, bool> RadioTabStops(const DialogTemplate& dialog) {
  std::map<int, bool> stops;
  for (const ControlTemplate& control : dialog.controls) {
    if (control.kind != ControlKind::kRadioButton) continue;
    stops[control.id] = (control.style & platform::kStyleTabStop) != 0;
    EXPECT_EQ(stops[control.id], (control.style & platform::kStyleGroup) != 0) << control.text;
  }
  return stops;
}

TEST(ImportHtrDialogTest, HasItsTitleAndSize) {
  const DialogTemplate dialog = Dialog(107);
  EXPECT_EQ(dialog.title, "ImportHTR");
  EXPECT_EQ(dialog.area.width, 262);
  EXPECT_EQ(dialog.area.height, 164);
}

TEST(ImportHtrDialogTest, HoldsEveryControlInItsGroupInReadingOrder) {
  const ControlKind radio = ControlKind::kRadioButton;
  const ControlKind check = ControlKind::kCheckBox;
  const ControlKind edit = ControlKind::kEdit;
  const ControlKind button = ControlKind::kPushButton;
  EXPECT_THAT(
      NumberedControls(Dialog(107)),
      testing::ElementsAre(
          Entry{1085, radio, "Create", "Skeleton"}, Entry{1086, radio, "Apply", "Skeleton"},
          Entry{1104, edit, "Segment Size", "Skeleton"},
          Entry{1019, check, "End Effectors", "Skeleton"},
          Entry{1017, check, "Base Position", "Keyframe Options"},
          Entry{1063, check, "Animation", "Keyframe Options"},
          Entry{1051, radio, "Euler", "Rotation Controller"},
          Entry{1052, radio, "TCB", "Rotation Controller"},
          Entry{1067, radio, "All", "Time Options"}, Entry{1068, radio, "Range", "Time Options"},
          Entry{1065, edit, "From", "Time Options"}, Entry{1066, edit, "To", "Time Options"},
          Entry{1089, edit, "Offset", "Time Options"},
          Entry{1140, check, "Set Frame Rate", "Time Options"},
          Entry{1088, edit, "Global", "Scale"}, Entry{1097, button, "&OK", ""},
          Entry{1098, button, "&Cancel", ""}));
}

TEST(ImportHtrDialogTest, NamesItsGroups) {
  EXPECT_THAT(Groups(Dialog(107)),
              testing::ElementsAre("Skeleton", "Keyframe Options", "Rotation Controller",
                                   "Time Options", "Scale"));
}

TEST(ImportHtrDialogTest, StopsTheTabKeyOnceInEachPairOfRadioButtons) {
  EXPECT_THAT(
      RadioTabStops(Dialog(107)),
      testing::ElementsAre(std::pair(1051, true), std::pair(1052, false), std::pair(1067, true),
                           std::pair(1068, false), std::pair(1085, true), std::pair(1086, false)));
}

TEST(ExportHtrDialogTest, HasItsTitle) { EXPECT_EQ(Dialog(126).title, "ExportHTR"); }

TEST(ExportHtrDialogTest, HoldsEveryControlInItsGroupInReadingOrder) {
  const ControlKind radio = ControlKind::kRadioButton;
  const ControlKind check = ControlKind::kCheckBox;
  const ControlKind edit = ControlKind::kEdit;
  const ControlKind button = ControlKind::kPushButton;
  EXPECT_THAT(
      NumberedControls(Dialog(126)),
      testing::ElementsAre(
          Entry{1106, radio, "Saved Pose", "Base Position"},
          Entry{1107, radio, "Current Pose", "Base Position"},
          Entry{1105, check, "Export Animation", "Options"},
          Entry{1109, check, "Parent Transforms", "Options"},
          Entry{1067, radio, "Slider", "Time Options"}, Entry{1068, radio, "Range", "Time Options"},
          Entry{1065, edit, "From", "Time Options"}, Entry{1066, edit, "To", "Time Options"},
          Entry{1089, edit, "Offset", "Time Options"}, Entry{1088, edit, "Global", "Scale"},
          Entry{1097, button, "&OK", ""}, Entry{1098, button, "&Cancel", ""}));
}

TEST(ExportHtrDialogTest, NamesItsGroups) {
  EXPECT_THAT(Groups(Dialog(126)),
              testing::ElementsAre("Base Position", "Options", "Time Options", "Scale"));
}

TEST(ExportHtrDialogTest, StopsTheTabKeyOnceInEachPairOfRadioButtons) {
  EXPECT_THAT(RadioTabStops(Dialog(126)),
              testing::ElementsAre(std::pair(1067, true), std::pair(1068, false),
                                   std::pair(1106, true), std::pair(1107, false)));
}

TEST(ImportTrcDialogTest, HoldsEveryControlInItsGroupInReadingOrder) {
  const ControlKind radio = ControlKind::kRadioButton;
  const ControlKind check = ControlKind::kCheckBox;
  const ControlKind edit = ControlKind::kEdit;
  const ControlKind button = ControlKind::kPushButton;
  EXPECT_EQ(Dialog(108).title, "ImportTRC");
  EXPECT_THAT(
      NumberedControls(Dialog(108)),
      testing::ElementsAre(
          Entry{1085, radio, "Create", "Cloud"}, Entry{1086, radio, "Apply", "Cloud"},
          Entry{1143, check, "Selected Items Only", "Cloud"},
          Entry{1144, check, "Root Node", "Cloud"}, Entry{1141, radio, "Sphere", "Geometry"},
          Entry{1142, radio, "Point", "Geometry"}, Entry{1104, edit, "Size", "Geometry"},
          Entry{1067, radio, "All", "Time Options"}, Entry{1068, radio, "Range", "Time Options"},
          Entry{1065, edit, "From", "Time Options"}, Entry{1066, edit, "To", "Time Options"},
          Entry{1089, edit, "Offset", "Time Options"},
          Entry{1140, check, "Set Frame Rate", "Time Options"},
          Entry{1088, edit, "Global", "Scale"}, Entry{1097, button, "&OK", ""},
          Entry{1098, button, "&Cancel", ""}));
}

// Closing one does nothing, so it must not look as if it did.
TEST(OptionsDialogTest, HasNoCloseBox) {
  constexpr std::uint32_t kSystemMenu = 0x00080000;
  for (const unsigned int id : {107U, 108U, 126U}) {
    EXPECT_EQ(Dialog(id).style & kSystemMenu, 0U) << id;
  }
  for (const unsigned int id : {114U, 117U}) EXPECT_NE(Dialog(id).style & kSystemMenu, 0U) << id;
}

TEST(UtilityPanelTest, HoldsEveryControlInItsGroupInReadingOrder) {
  const ControlKind radio = ControlKind::kRadioButton;
  const ControlKind check = ControlKind::kCheckBox;
  const ControlKind edit = ControlKind::kEdit;
  const ControlKind button = ControlKind::kPushButton;
  const ControlKind host_edit = ControlKind::kOther;
  EXPECT_THAT(NumberedControls(Dialog(116)),
              testing::ElementsAre(Entry{1137, edit, "", ""}, Entry{1203, button, "Create", ""},
                                   Entry{1132, button, "Browse...", ""}, Entry{1138, edit, "", ""},
                                   Entry{1134, button, "Browse...", ""},
                                   Entry{1200, button, "Convert TRC to BVK", ""},
                                   Entry{1204, check, "Use MNM Filter File", "Options"},
                                   Entry{1201, check, "Batch File Conversion", "Options"},
                                   Entry{1202, check, "Use TRC Filename", "Options"},
                                   Entry{1205, check, "Enable", "Translation Offset"},
                                   Entry{1124, radio, "TRC Space", "Translation Offset"},
                                   Entry{1125, radio, "Skelder Space", "Translation Offset"},
                                   Entry{1206, host_edit, "", "Translation Offset"},
                                   Entry{1207, host_edit, "", "Translation Offset"},
                                   Entry{1208, host_edit, "", "Translation Offset"}));
}

std::vector<std::string> Labels(const DialogTemplate& dialog) {
  std::vector<std::string> labels;
  for (const ControlTemplate& control : dialog.controls) {
    if (control.kind == ControlKind::kLabel) labels.push_back(control.text);
  }
  return labels;
}

TEST(UtilityPanelTest, LabelsItsEditControls) {
  const DialogTemplate dialog = Dialog(116);
  EXPECT_THAT(Labels(dialog),
              testing::ElementsAre("MNM Mapping File", "BVK Output Folder", "X", "Y", "Z"));
  for (const ControlTemplate& control : dialog.controls) {
    if (control.kind == ControlKind::kOther) {
      EXPECT_EQ(control.window_class, "SKELDEREDIT") << "as the resource compiler writes it";
      EXPECT_NE(LabelOf(dialog, control), "") << control.id;
    }
    if (control.kind == ControlKind::kEdit) {
      EXPECT_NE(control.style & platform::kStyleReadOnly, 0U) << control.id;
    }
  }
}

TEST(UtilityPanelTest, IsAPageOfTheHost) {
  EXPECT_NE(Dialog(116).style & platform::kStyleChild, 0U);
  EXPECT_EQ(Dialog(116).title, "");
}

TEST(MappingCreatorDialogTest, ShowsTheMarkerAndThreeButtons) {
  const DialogTemplate dialog = Dialog(117);
  EXPECT_EQ(dialog.title, "MNM Creator / Marker Selection");
  EXPECT_THAT(Labels(dialog), testing::ElementsAre("BVK Marker Name"));
  EXPECT_THAT(NumberedControls(dialog),
              testing::ElementsAre(Entry{1151, ControlKind::kEdit, "", ""},
                                   Entry{1152, ControlKind::kPushButton, "Back", ""},
                                   Entry{1153, ControlKind::kPushButton, "Skip", ""},
                                   Entry{1154, ControlKind::kPushButton, "Abort", ""}));
  EXPECT_EQ(dialog.style & platform::kStyleChild, 0U);
  EXPECT_NE(dialog.controls.at(1).style & platform::kStyleReadOnly, 0U);
}

TEST(AboutDialogTest, NamesTheProductAndItsVersion) {
  const DialogTemplate dialog = Dialog(114);
  EXPECT_EQ(dialog.title, "About...");
  std::vector<std::string> lines;
  for (const ControlTemplate& control : dialog.controls) {
    if (control.kind == ControlKind::kLabel) lines.push_back(control.text);
  }
  EXPECT_THAT(lines, testing::IsSupersetOf({"OrvaneFileIO for Skelder", "Version 3.2.1",
                                            "Copyright (c) 2026 The OrvaneFileIO authors"}));
}

TEST(AboutDialogTest, HasAPictureAndAButtonToCloseIt) {
  const DialogTemplate dialog = Dialog(114);
  EXPECT_THAT(NumberedControls(dialog),
              testing::ElementsAre(Entry{1097, ControlKind::kPushButton, "OK", ""}));
  EXPECT_EQ(std::count_if(
                dialog.controls.begin(), dialog.controls.end(),
                [](const ControlTemplate& control) { return control.kind == ControlKind::kImage; }),
            1);
}

class DialogLayoutTest : public testing::TestWithParam<unsigned int> {};

TEST_P(DialogLayoutTest, KeepsControlsInsideTheDialogAndApart) {
  const DialogTemplate dialog = Dialog(GetParam());
  ASSERT_FALSE(dialog.controls.empty());
  const DialogRectangle inside{0, 0, dialog.area.width, dialog.area.height};
  for (std::size_t i = 0; i < dialog.controls.size(); ++i) {
    const ControlTemplate& control = dialog.controls[i];
    EXPECT_TRUE(Contains(inside, control.area)) << control.text;
    for (std::size_t j = 0; j < i; ++j) {
      const ControlTemplate& other = dialog.controls[j];
      EXPECT_TRUE(!Overlap(control.area, other.area) ||
                  (other.kind == ControlKind::kGroupBox && Contains(other.area, control.area)))
          << control.text << " over " << other.text;
    }
  }
}

TEST_P(DialogLayoutTest, LetsItsHandlerSelectRadioButtons) {
  for (const ControlTemplate& control : Dialog(GetParam()).controls) {
    if (control.kind == ControlKind::kRadioButton) {
      EXPECT_EQ(control.style & 0x0FU, 4U) << control.text;
    }
  }
}

TEST_P(DialogLayoutTest, EndsAGroupOfRadioButtonsWithItsLastOne) {
  bool after_radio = false;
  for (const ControlTemplate& control : Dialog(GetParam()).controls) {
    const bool is_radio = control.kind == ControlKind::kRadioButton;
    if (after_radio && !is_radio) {
      EXPECT_NE(control.style & platform::kStyleGroup, 0U)
          << "the arrow keys leave the radio buttons for " << control.text;
    }
    after_radio = is_radio;
  }
}

TEST_P(DialogLayoutTest, KeepsItsMargins) {
  const DialogTemplate dialog = Dialog(GetParam());
  const int margin = (dialog.style & platform::kStyleChild) != 0 ? 4 : 7;
  const DialogRectangle inside{margin, margin, dialog.area.width - 2 * margin,
                               dialog.area.height - 2 * margin};
  for (const ControlTemplate& control : dialog.controls) {
    EXPECT_TRUE(Contains(inside, control.area)) << control.id << " " << control.text;
  }
}

TEST_P(DialogLayoutTest, HasOneDefaultButtonAtMost) {
  int defaults = 0;
  for (const ControlTemplate& control : Dialog(GetParam()).controls) {
    if (control.kind != ControlKind::kPushButton) continue;
    const bool is_default = (control.style & 0x0FU) == 1;
    EXPECT_EQ(is_default, control.id == 1097) << control.text;
    defaults += is_default ? 1 : 0;
  }
  EXPECT_LE(defaults, 1);
}

TEST_P(DialogLayoutTest, UsesEveryNumberAndMnemonicOnce) {
  std::set<int> ids;
  std::set<char> mnemonics;
  for (const ControlTemplate& control : Dialog(GetParam()).controls) {
    EXPECT_TRUE(control.id == -1 || ids.insert(control.id).second) << control.id;
    const std::size_t ampersand = control.text.find('&');
    EXPECT_TRUE(ampersand == std::string::npos ||
                mnemonics.insert(control.text.at(ampersand + 1)).second)
        << control.text;
  }
}

INSTANTIATE_TEST_SUITE_P(AllDialogs, DialogLayoutTest,
                         testing::Values(107U, 108U, 114U, 116U, 117U, 126U));

}  // namespace
