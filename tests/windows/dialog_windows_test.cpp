// The module's dialogs as the system shows them: what the keyboard does in them, whether everything
// is to be seen, and a picture of each.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "plugin/resources/resource.h"
#include "tests/module/utility_fixture.h"
#include "tests/windows/picture.h"
#include "tests/windows/window_layout.h"

namespace test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

constexpr int kCreate = IDC_CREATE;
constexpr int kApply = IDC_APPLY;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;
constexpr int kAbort = IDC_ABORT;

// What a test does with an open dialog.
using Look = Desk::DialogAnswer;

// Opens each dialog of the module, lets a test look at it, and leaves it without any choice.
class DialogWindowTest : public UtilityTest {
 public:
  void ImportHtr(const Look& look) {
    Import(ORVANE_SOURCE_DIR "/examples/walk.htr", ThenPress(kCancel, look));
  }
  void ImportTrc(const Look& look) {
    Import(ORVANE_SOURCE_DIR "/examples/walk.trc", ThenPress(kCancel, look));
  }
  void ExportHtr(const Look& look) { Export(folder_.File("out.htr"), ThenPress(kCancel, look)); }

  void About(const Look& look) {
    desk_.Expect(ThenPress(kOk, look));
    const std::unique_ptr<SceneImport> plugin(
        static_cast<SceneImport*>(module_->ClassDescriptor(0)->Create(false)));
    plugin->ShowAbout(application_.main_window());
  }

  void Panel(const Look& look) {
    Open();
    look(Page());
  }

  void Creator(const Look& look) {
    Open();
    desk_.Choose(platform::kMessageBoxNo);
    desk_.Act([this, &look] {
      ThenPress(kAbort, look)(*desk_.desktop().ShownDialog(117));
      return true;
    });
    Page().Click(kCreateMapping);
  }

 private:
  static Look ThenPress(int button, const Look& look) {
    return [button, &look](host::ScriptedDialog& dialog) {
      look(dialog);
      dialog.Click(button);
    };
  }
};

using Opener = void (DialogWindowTest::*)(const Look&);

struct Shown {
  const char* name;
  Opener open;
  int default_button;
  std::vector<int> tab_order;  // with the defaults of a fresh installation
};

void PrintTo(const Shown& shown, std::ostream* out) { *out << shown.name; }

class EveryDialogTest : public DialogWindowTest, public testing::WithParamInterface<Shown> {
 protected:
  void Show(const Look& look) { (this->*GetParam().open)(look); }
};

TEST_P(EveryDialogTest, ShowsAllOfEveryControl) {
  Show([](host::ScriptedDialog& dialog) { EXPECT_THAT(LayoutFaults(dialog.Window()), IsEmpty()); });
}

TEST_P(EveryDialogTest, HasItsDefaultButton) {
  Show([](host::ScriptedDialog& dialog) {
    EXPECT_EQ(DefaultButton(dialog.Window()), GetParam().default_button);
  });
}

TEST_P(EveryDialogTest, LetsTheTabKeyGoInReadingOrder) {
  Show([](host::ScriptedDialog& dialog) {
    EXPECT_EQ(TabOrder(dialog.Window()), GetParam().tab_order);
  });
}

// The pictures are for people, who find them beside the build.
TEST_P(EveryDialogTest, HasItsPictureTaken) {
  const std::filesystem::path folder = ORVANE_SOURCE_DIR "/build/screenshots";
  std::filesystem::create_directories(folder);
  const std::filesystem::path picture = folder / (std::string(GetParam().name) + ".png");
  std::filesystem::remove(picture);
  Show([&picture](host::ScriptedDialog& dialog) {
    EXPECT_TRUE(SavePicture(dialog.Window(), picture));
  });
  EXPECT_GT(std::filesystem::file_size(picture), 1000U);
}

INSTANTIATE_TEST_SUITE_P(
    DialogWindow, EveryDialogTest,
    testing::Values(Shown{"import-htr",
                          &DialogWindowTest::ImportHtr,
                          1097,
                          {1085, 1104, 1019, 1017, 1063, 1051, 1067, 1089, 1140, 1088, 1097, 1098}},
                    Shown{"import-trc",
                          &DialogWindowTest::ImportTrc,
                          1097,
                          {1085, 1144, 1141, 1104, 1067, 1089, 1140, 1088, 1097, 1098}},
                    Shown{"export-htr",
                          &DialogWindowTest::ExportHtr,
                          1097,
                          {1106, 1105, 1109, 1067, 1089, 1088, 1097, 1098}},
                    Shown{"about", &DialogWindowTest::About, 1097, {1097}},
                    Shown{"panel",
                          &DialogWindowTest::Panel,
                          0,
                          {1137, 1203, 1132, 1138, 1134, 1200, 1204, 1201, 1202, 1205}},
                    Shown{"mapping-creator", &DialogWindowTest::Creator, 0, {1151, 1154}}),
    [](const auto& test) {
      std::string name = test.param.name;
      std::replace(name.begin(), name.end(), '-', '_');
      return name;
    });

// A pair of radio buttons: the arrow keys go from one to the other, the tab key stops at the one
// that is selected.
struct Pair {
  const char* name;
  Opener open;
  int first;
  int second;
};

void PrintTo(const Pair& pair, std::ostream* out) { *out << pair.name; }

class RadioButtonsTest : public DialogWindowTest, public testing::WithParamInterface<Pair> {};

TEST_P(RadioButtonsTest, AreOneStopOfTheTabKey) {
  const auto& [name, open, first, second] = GetParam();
  (this->*open)([first = first, second = second](host::ScriptedDialog& dialog) {
    const HWND window = dialog.Window();
    EXPECT_THAT(TabOrder(window), AllOf(Contains(first), Not(Contains(second))));
    dialog.Click(second);
    EXPECT_THAT(TabOrder(window), AllOf(Contains(second), Not(Contains(first))));
    dialog.Click(first);
    EXPECT_THAT(TabOrder(window), AllOf(Contains(first), Not(Contains(second))));
  });
}

TEST_P(RadioButtonsTest, ShareTheArrowKeysWithNothingElse) {
  const auto& [name, open, first, second] = GetParam();
  (this->*open)([first = first, second = second](host::ScriptedDialog& dialog) {
    EXPECT_THAT(ArrowOrder(dialog.Window(), first), ElementsAre(first, second));
    EXPECT_THAT(ArrowOrder(dialog.Window(), second), ElementsAre(second, first));
  });
}

INSTANTIATE_TEST_SUITE_P(
    DialogWindow, RadioButtonsTest,
    testing::Values(Pair{"ImportHtrTarget", &DialogWindowTest::ImportHtr, 1085, 1086},
                    Pair{"ImportHtrController", &DialogWindowTest::ImportHtr, 1051, 1052},
                    Pair{"ImportHtrFrames", &DialogWindowTest::ImportHtr, 1067, 1068},
                    Pair{"ImportTrcTarget", &DialogWindowTest::ImportTrc, 1085, 1086},
                    Pair{"ImportTrcGeometry", &DialogWindowTest::ImportTrc, 1141, 1142},
                    Pair{"ImportTrcFrames", &DialogWindowTest::ImportTrc, 1067, 1068},
                    Pair{"ExportHtrPose", &DialogWindowTest::ExportHtr, 1106, 1107},
                    Pair{"ExportHtrFrames", &DialogWindowTest::ExportHtr, 1067, 1068}),
    [](const auto& test) { return test.param.name; });

// The default focus selects the radio button that it falls on.
TEST_F(DialogWindowTest, AStoredChoiceIsStillSelectedWhenTheDialogHasTheFocus) {
  Import(ORVANE_SOURCE_DIR "/examples/walk.htr", [](host::ScriptedDialog& dialog) {
    dialog.Click(kApply);
    dialog.Click(kOk);
  });
  ImportHtr([](host::ScriptedDialog& dialog) {
    EXPECT_EQ(Focus(dialog.Window()), kApply);
    EXPECT_TRUE(dialog.IsChecked(kApply));
    EXPECT_FALSE(dialog.IsChecked(kCreate));
    EXPECT_THAT(TabOrder(dialog.Window()), Not(Contains(kCreate)));
  });
}

TEST_F(DialogWindowTest, TheEditControlsOfTheHostHaveTheirFrame) {
  Panel([](host::ScriptedDialog& page) {
    for (const int edit : {kOffsetX, kOffsetY, kOffsetZ}) {
      EXPECT_TRUE(HasFrame(page.Window(), edit)) << edit;
    }
  });
}

TEST_F(DialogWindowTest, TheRadioButtonsOfThePanelAreOneStopOnceTheyAreEnabled) {
  Panel([](host::ScriptedDialog& page) {
    page.Click(kEnableOffset);
    EXPECT_THAT(TabOrder(page.Window()), IsSupersetOf({kTrcSpace, kOffsetX, kOffsetY, kOffsetZ}));
    EXPECT_THAT(TabOrder(page.Window()), Not(Contains(kSkelderSpace)));
    page.Click(kSkelderSpace);
    EXPECT_THAT(TabOrder(page.Window()), Not(Contains(kTrcSpace)));
    EXPECT_THAT(ArrowOrder(page.Window(), kTrcSpace), ElementsAre(kTrcSpace, kSkelderSpace));
  });
}

}  // namespace
}  // namespace test
