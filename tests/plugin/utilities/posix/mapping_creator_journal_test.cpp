#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <utility>

#include "plugin/resources/resource.h"
#include "tests/plugin/utilities/posix/utilities_stage.h"
#include "tests/support/bone_nodes.h"

// What the mapping creator asks of its host and its user, call by call.

namespace test {
namespace {

constexpr int kCreateMapping = IDC_CREATE_MAPPING;
constexpr int kBack = IDC_BACK;
constexpr int kSkip = IDC_SKIP;
constexpr int kAbort = IDC_ABORT;

// A panel that is open, an object to pick for everything, and a user who does one thing after the
// other, then picks, and chooses the file made.mnm. He has a left wrist stick and no right one.
struct Stage : UtilitiesStage {
  Stage() {
    AddDummy(scene(), "Thing");
    journal.WatchFile(folder.File("made.mnm"), "made.mnm");
    desk.Choose([](const std::string& question) {
      const bool left = question.find("left") != std::string::npos;
      return left ? platform::kMessageBoxYes : platform::kMessageBoxNo;
    });
    desk.ChooseFiles([this](const host::ShownFileDialog&) { return choice; });
    desk.Act([this] { return Act(), true; });
    choice.paths = {folder.File("made.mnm")};
    Make();
    Open();
    journal.Take();
  }

  JournalLines Create(std::deque<std::function<void()>> actions) {
    actions_ = std::move(actions);
    Page().Click(kCreateMapping);
    return journal.Take();
  }
  JournalLines Run() { return Create(std::move(planned)); }

  void Pick() { application.picking().Click(scene().FindByName("Thing")); }
  void RightClick() { application.picking().RightClick(); }
  void Press(int button) { desk.desktop().ShownDialog(IDD_MAPPING_CREATOR)->Click(button); }

  host::FileChoice choice;
  std::deque<std::function<void()>> planned;

 private:
  void Act() {
    if (actions_.empty()) return Pick();
    const std::function<void()> action = std::move(actions_.front());
    actions_.pop_front();
    action();
  }

  std::deque<std::function<void()>> actions_;
};

// Each question to the user in one line, with what is enabled then.
JournalLines Questions(const JournalLines& lines) {
  const std::string dialog = "dialog 117 ";
  JournalLines questions;
  for (const std::string& line : lines) {
    if (line.rfind(dialog, 0) != 0) continue;
    const std::string told = line.substr(dialog.size());
    if (told.rfind("text", 0) == 0) {
      questions.push_back(told);
    } else {
      questions.back() += ", " + told;
    }
  }
  return questions;
}

TEST(MappingCreatorJournal, AllQuestions) {
  Stage stage;
  ExpectUtilitiesJournal("creator_questions", Questions(stage.Create({})));
}

TEST(MappingCreatorJournal, PickedAndAborted) {
  Stage stage;
  ExpectUtilitiesJournal("creator_aborted",
                         stage.Create({[&] { stage.Pick(); }, [&] { stage.Press(kAbort); }}));
}

TEST(MappingCreatorJournal, AbortGoesBeforeOtherButtons) {
  Stage stage;
  ExpectUtilitiesJournal("creator_abort_first", stage.Create({[&] { stage.Pick(); },
                                                              [&] {
                                                                stage.journal.Take();
                                                                stage.Press(kAbort);
                                                                stage.Press(kBack);
                                                              }}));
}

TEST(MappingCreatorJournal, Back) {
  Stage stage;
  ExpectUtilitiesJournal("creator_back", stage.Create({[&] { stage.Pick(); },
                                                       [&] {
                                                         stage.journal.Take();
                                                         stage.Press(kBack);
                                                       },
                                                       [&] { stage.Press(kAbort); }}));
}

TEST(MappingCreatorJournal, RightClick) {
  Stage stage;
  ExpectUtilitiesJournal("creator_right_click", stage.Create({[&] {
                                                                stage.journal.Take();
                                                                stage.RightClick();
                                                              },
                                                              [&] { stage.Press(kAbort); }}));
}

TEST(MappingCreatorJournal, Skip) {
  Stage stage;
  std::deque<std::function<void()>> actions(9, [&] { stage.Pick(); });
  actions.push_back([&] {
    stage.journal.Take();
    stage.Press(kSkip);
  });
  actions.push_back([&] { stage.Press(kAbort); });
  ExpectUtilitiesJournal("creator_skip", Folded(stage.Create(std::move(actions))));
}

TEST(MappingCreatorJournal, HostExits) {
  Stage stage;
  ExpectUtilitiesJournal("creator_host_exits", stage.Create({[&] { stage.Pick(); },
                                                             [&] {
                                                               stage.journal.Take();
                                                               stage.application.Exit();
                                                             }}));
}

TEST(MappingCreatorJournal, PanelClosed) {
  Stage stage;
  ExpectUtilitiesJournal("creator_panel_closed", stage.Create({[&] { stage.Pick(); },
                                                               [&] {
                                                                 stage.journal.Take();
                                                                 stage.Close();
                                                               }}));
}

TEST(MappingCreatorJournal, NothingCanBePicked) {
  Stage stage;
  stage.application.callbacks().RefusePickModes();
  ExpectUtilitiesJournal("creator_no_pick_mode", stage.Create({}));
}

// From the last of the markers on.
JournalLines Ending(const std::function<void(Stage&)>& prepare) {
  Stage stage;
  prepare(stage);
  std::deque<std::function<void()>> actions(44, [&] { stage.Pick(); });
  actions.push_back([&] {
    stage.journal.Take();
    stage.Pick();
  });
  return Folded(stage.Create(std::move(actions)));
}

TEST(MappingCreatorJournal, Saved) {
  ExpectUtilitiesJournal("creator_saved", Ending([](Stage&) {}));
}

TEST(MappingCreatorJournal, NotSaved) {
  JournalLines lines = Ending([](Stage& stage) { stage.choice.paths.clear(); });
  Append(lines, Ending([](Stage& stage) {
           const std::string too_long(300, 'x');
           stage.choice.paths = {stage.folder.File(too_long)};
           stage.journal.Abbreviate(too_long, "TOO LONG");
         }));
  ExpectUtilitiesJournal("creator_not_saved", lines);
}

}  // namespace
}  // namespace test
