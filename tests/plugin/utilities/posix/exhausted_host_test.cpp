#include <gtest/gtest.h>

#include <new>

#include "plugin/resources/resource.h"
#include "plugin/utilities/convert_bvk.h"
#include "tests/plugin/utilities/posix/utilities_stage.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/posix/journal/each_call_failing.h"
#include "tests/support/trc_text.h"

// What the utilities do when there is no memory: nothing is thrown over the border.

namespace test {
namespace {

constexpr int kBrowseMapping = IDC_BROWSE_MAPPING;
constexpr int kCreateMapping = IDC_CREATE_MAPPING;
constexpr int kAbort = IDC_ABORT;
constexpr int kConvert = IDC_CONVERT;

// Has no memory for its messages, or for saying which its window is.
class ExhaustedHost final : public ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;

  void ProcessPendingMessages() override {
    if (messages_left-- == 0) throw std::bad_alloc();
    ForwardingInterface::ProcessPendingMessages();
  }
  HWND GetSkelderHWnd() override {
    if (!has_window) throw std::bad_alloc();
    return ForwardingInterface::GetSkelderHWnd();
  }

  int messages_left = 0;
  bool has_window = true;
};

// What the utilities can be asked for: the objects that the panel makes.
struct Stage : UtilitiesStage {
  orvane::ConvertBVK converter{messages, strings, platform::ModuleHandle()};
  ExhaustedHost exhausted{host};
};

TEST(ExhaustedHost, ACommandOfThePanelIsNotCarriedOut) {
  Stage stage;
  stage.Make();
  stage.utilities->BeginEditParams(&stage.exhausted, nullptr);
  stage.journal.Take();
  stage.exhausted.has_window = false;
  stage.Page().Click(kBrowseMapping);
  EXPECT_EQ(stage.journal.Take(),
            (JournalLines{"the user uses 1132 of dialog 116",
                          "message \"OrvaneUtilities Error\": "
                          "\"There is not enough memory for this command.\""}));
  stage.exhausted.has_window = true;
  stage.Close();
}

TEST(ExhaustedHost, AConversionIsAbandoned) {
  Stage stage;
  const TrcText take{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}};
  const std::string path = stage.folder.Write("walk.trc", take.Text());
  stage.desk.ChooseFiles([&](const host::ShownFileDialog&) { return host::FileChoice{{path}}; });
  EXPECT_FALSE(stage.converter.Convert(&stage.exhausted));
  const JournalLines lines = stage.journal.Take();
  EXPECT_EQ(JournalLines(lines.end() - 3, lines.end()),
            (JournalLines{"progress 0", "progress end",
                          "message \"ConvertBVK Error\": "
                          "\"There is not enough memory to convert the file.\""}));
}

TEST(ExhaustedHost, TheMappingCreatorEndsLikeAnAbortion) {
  Stage stage;
  AddDummy(stage.scene(), "Thing");
  stage.desk.Act(
      [&] { return stage.application.picking().Click(stage.scene().FindByName("Thing")); });
  stage.exhausted.messages_left = 1;
  stage.Make();
  stage.utilities->BeginEditParams(&stage.exhausted, nullptr);
  stage.Page().Click(kCreateMapping);
  const JournalLines lines = stage.journal.Take();
  EXPECT_EQ(JournalLines(lines.end() - 8, lines.end()),
            (JournalLines{"leave the pick mode", "unregister the exit callback",
                          "node of the handle? Thing", "Thing wire color (204, 51, 51)", "time? 37",
                          "redraw the views at 37", "destroy dialog 117",
                          "message \"MNM File Creation Status\": "
                          "\"There is not enough memory to create the mapping file.\""}));
  stage.Close();
}

// A panel whose user chooses a mapping, begins another one and converts a file.
struct BusyStage : UtilitiesStage {
  BusyStage() {
    StoreFlag("Offset", true);
    AddDummy(scene(), "Thing");
    desk.Act([this] {
      if (++waits < 4) {
        application.picking().Click(scene().FindByName("Thing"));
      } else {
        desk.desktop().ShownDialog(IDD_MAPPING_CREATOR)->Click(kAbort);
      }
      return true;
    });
    const std::string mapping = folder.Write("made.mnm", "");
    const TrcText take{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}};
    const std::string source = folder.Write("walk.trc", take.Text());
    desk.ChooseFiles([=](const host::ShownFileDialog& dialog) {
      const bool is_source = dialog.title == "Select Source TRC Files...";
      return host::FileChoice{{is_source ? source : mapping}, true};
    });
    Make();
    journal.Take();
  }

  int waits = 0;
};

// By any call of the host and the system, of nodes, edit controls and dialogs.
TEST(ExhaustedHost, NothingThrownLeavesThePanel) {
  const int calls = EachCallFailing<BusyStage>([](BusyStage& stage) {
    stage.Open();
    for (const int button : {kBrowseMapping, kCreateMapping, kConvert}) {
      host::ScriptedDialog* const page = stage.desk.desktop().ShownDialog(IDD_UTILITIES);
      if (page != nullptr) page->Click(button);
    }
    stage.Close();
    EXPECT_EQ(stage.application.rollup_pages().Open().size(), 0U);
    EXPECT_EQ(stage.application.HeldCustomEdits(), 0);
    EXPECT_EQ(stage.desk.desktop().ShownDialog(IDD_MAPPING_CREATOR), nullptr);
    EXPECT_FALSE(stage.application.picking().IsActive());
    EXPECT_TRUE(stage.application.callbacks().ExitCallbacks().empty());
  });
  EXPECT_GT(calls, 80);
}

}  // namespace
}  // namespace test
