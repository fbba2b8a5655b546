#include <gtest/gtest.h>

#include "platform/module.h"
#include "plugin/import_trc/import_trc.h"
#include "plugin/resources/resource.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/posix/journal/disturbed.h"
#include "tests/support/posix/journal/each_call_failing.h"
#include "tests/support/posix/journal/journal_stage.h"
#include "tests/support/trc_text.h"

// What an import of markers asks of its host, call by call.

namespace orvane {
namespace {

using test::Append;
using test::JournalLines;
using test::TrcText;

constexpr int kRange = IDC_RANGE;
constexpr int kFrom = IDC_FROM;
constexpr int kApply = IDC_APPLY;
constexpr int kPoint = IDC_POINT;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;

// Two markers, two frames; the second marker drops out once.
TrcText TwoMarkers() {
  return {.markers = {"Head", "Hand"},
          .frames = {{"1\t2\t3", "10\t20\t30"}, {"4\t5\t6", ""}},
          .data_rate = "2400"};
}

void Expect(const std::string& name, const JournalLines& lines) {
  test::ExpectJournal(ORVANE_SOURCE_DIR "/tests/plugin/import_trc/posix/journals/" + name + ".txt",
                      lines);
}

// An importer, which the tests tell its options.
struct Stage : test::JournalStage {
  Stage() { journal.Take(); }

  JournalLines Import(const TrcText& file = TwoMarkers(), int suppress_prompts = 1) {
    return ImportBytes(file.Text(), suppress_prompts);
  }
  JournalLines ImportBytes(const std::string& bytes, int suppress_prompts = 1) {
    const std::string path = folder.Write("walk.trc", bytes);
    return LinesOf(importer.DoImport(path.c_str(), nullptr, &host, suppress_prompts));
  }
  JournalLines Run() { return Import(); }
  JournalLines ImportWith(const test::Desk::DialogAnswer& user,
                          const TrcText& file = TwoMarkers()) {
    desk.Expect(user);
    return Import(file, 0);
  }

  // Selects an object called Group, with another one called Hand below it, and then one called
  // Last.
  void SelectObjects() {
    host::Node& group = test::AddDummy(scene(), "Group");
    test::AddDummy(scene(), "Hand", &group);
    scene().Select(group);
    scene().Select(test::AddDummy(scene(), "Last"));
  }

  ImportTRCOptions options;
  MessageSink sink;
  ImportTRC importer{options, sink, platform::ModuleHandle()};
};

using Import = test::Disturbed<Stage>;

void PrepareSpheres(Stage& stage) {
  stage.options.rootNode = true;
  stage.options.setFrameRate = true;
  stage.options.size = 3;
  stage.options.scaleFactor = 2;
  stage.options.frameOffset = 3;
  stage.scene().SetMillimetersPerUnit(10);
}

void PreparePoints(Stage& stage) { stage.options.geometry = false; }

void PrepareApply(Stage& stage) {
  stage.options.apply = true;
  stage.SelectObjects();
}

void PrepareSelectedOnly(Stage& stage) {
  stage.options.selectedOnly = true;
  PrepareApply(stage);
}

// --- Create ---

TEST(ImportTRCJournal, CreateSpheres) {
  Stage stage;
  PrepareSpheres(stage);
  Expect("create_spheres", stage.Import());
}

TEST(ImportTRCJournal, CreatePoints) {
  Stage stage;
  PreparePoints(stage);
  Expect("create_points", stage.Import());
}

TEST(ImportTRCJournal, CreateWithTheDialog) {
  Stage stage;
  TrcText file = TwoMarkers();
  file.markers.pop_back();
  for (TrcText::Frame& frame : file.frames) frame.pop_back();
  Expect("create_with_dialog", stage.ImportWith(
                                   [](host::ScriptedDialog& dialog) {
                                     dialog.Click(kPoint);
                                     dialog.Click(kRange);
                                     dialog.Type(kFrom, "2");
                                     dialog.Type(kGlobal, "0");
                                     dialog.Click(kOk);
                                     dialog.Type(kGlobal, "1");
                                     dialog.Click(kOk);
                                   },
                                   file));
}

// --- Apply ---

TEST(ImportTRCJournal, Apply) {
  Stage stage;
  PrepareApply(stage);
  Expect("apply", stage.Import());
}

TEST(ImportTRCJournal, ApplyToSelectedOnly) {
  Stage stage;
  PrepareSelectedOnly(stage);
  Expect("apply_selected_only", stage.Import());
}

TEST(ImportTRCJournal, ApplyToSelectedOnlyWithoutAny) {
  Stage stage;
  stage.options.apply = true;
  stage.options.selectedOnly = true;
  Expect("apply_none_selected", stage.Import());
}

TEST(ImportTRCJournal, ApplyWithTheDialog) {
  Stage stage;
  stage.SelectObjects();
  TrcText file = TwoMarkers();
  file.frames.pop_back();
  Expect("apply_with_dialog", stage.ImportWith(
                                  [](host::ScriptedDialog& dialog) {
                                    dialog.Click(kApply);
                                    dialog.Click(kOk);
                                  },
                                  file));
}

// --- Refused and cancelled ---

TEST(ImportTRCJournal, CreateRefused) {
  const Import spheres{"create_spheres", PrepareSpheres};
  JournalLines lines;
  for (const int n : {1, 2, 3, 4}) Append(lines, spheres.WithoutValue(n));
  for (const int n : {1, 2, 3}) Append(lines, spheres.WithoutInstance(n));
  for (const int n : {1, 2, 3}) Append(lines, spheres.WithoutNode(n));

  const Import points{"create_points", PreparePoints};
  Append(lines, points.WithoutInstance(1));
  Append(lines, points.WithoutNode(1));
  Expect("create_refused", lines);
}

TEST(ImportTRCJournal, CreateCanceled) {
  const Import spheres{"create_spheres", PrepareSpheres};
  JournalLines lines;
  for (const int n : {1, 2}) Append(lines, spheres.CancelledAt(n));
  Expect("create_cancelled", lines);
}

TEST(ImportTRCJournal, ApplyRefused) {
  const Import apply{"apply_selected_only", PrepareSelectedOnly};
  JournalLines lines;
  for (const int n : {1, 2, 3, 4}) Append(lines, apply.WithoutValue(n));
  for (const char* node : {"Last", "Hand"}) {
    Append(lines, apply.When(std::string(node) + " has no position controller", [=](Stage& stage) {
      stage.scene().FindByName(node)->Transform()->HidePositionController(true);
    }));
  }
  for (const int n : {1, 2}) Append(lines, apply.CancelledAt(n));
  Expect("apply_refused", lines);
}

TEST(ImportTRCJournal, CanceledInTheDialog) {
  Stage stage;
  TrcText file = TwoMarkers();
  file.first_frame = 7;
  Expect("cancelled_in_dialog",
         stage.ImportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); }, file));
}

TEST(ImportTRCJournal, FileRefused) {
  Stage stage;
  Expect("file_refused", stage.ImportBytes("a poem\n"));
}

// The numbers of a bar that is told in single precision.
TEST(ImportTRCJournal, AHundredMarkers) {
  Stage stage;
  TrcText file;
  for (int index = 1; index <= 100; ++index) file.markers.push_back("m" + std::to_string(index));
  JournalLines progress;
  for (const std::string& line : stage.Import(file)) {
    if (line.rfind("progress", 0) == 0) progress.push_back(line);
  }
  Expect("hundred_markers", progress);
}

// --- Exceptions ---

// Thrown by any call of the host and the system, of nodes, controllers, objects and dialogs.
TEST(ImportTRCJournal, NothingThrownLeavesTheImporter) {
  for (const bool spheres : {false, true}) {
    const int calls = test::EachCallFailing<Stage>([spheres](Stage& stage) {
      PrepareSpheres(stage);
      stage.options.geometry = spheres;
      (void)stage.ImportWith([](host::ScriptedDialog& dialog) { dialog.Click(kOk); });
    });
    EXPECT_GT(calls, 80);
  }
}

}  // namespace
}  // namespace orvane
