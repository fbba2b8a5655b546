#include <gtest/gtest.h>

#include "platform/module.h"
#include "plugin/import_htr/import_htr.h"
#include "plugin/resources/resource.h"
#include "tests/plugin/import_htr/posix/two_bones.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/posix/journal/disturbed.h"
#include "tests/support/posix/journal/each_call_failing.h"
#include "tests/support/posix/journal/journal_stage.h"

// What an import asks of its host, call by call.

namespace orvane {
namespace {

using test::Append;
using test::HtrText;
using test::JournalLines;
using test::TwoBones;

constexpr int kApply = IDC_APPLY;
constexpr int kSetFrameRate = IDC_SET_FRAME_RATE;
constexpr int kFrom = IDC_FROM;
constexpr int kRange = IDC_RANGE;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;

void Expect(const std::string& name, const JournalLines& lines) {
  test::ExpectJournal(ORVANE_SOURCE_DIR "/tests/plugin/import_htr/posix/journals/" + name + ".txt",
                      lines);
}

// An importer, which the tests tell its options.
struct Stage : test::JournalStage {
  Stage() { journal.Take(); }

  JournalLines Import(const HtrText& file = TwoBones(), int suppress_prompts = 1) {
    const std::string path = folder.Write("walk.htr", file.Text());
    return LinesOf(importer.DoImport(path.c_str(), nullptr, &host, suppress_prompts));
  }
  JournalLines Run() { return Import(); }
  JournalLines ImportWith(const test::Desk::DialogAnswer& user, const HtrText& file = TwoBones()) {
    desk.Expect(user);
    return Import(file, 0);
  }

  // The skeleton that is in the scene, its root selected.
  void AddSkeleton() {
    host::Node& hips = test::AddBone(scene(), "Hips");
    test::AddBone(scene(), "Other", &hips);
    test::AddBone(scene(), "Leg", &hips);
    hips.Transform()->Scale().SetConstant(Point3(2, 3, 4));
    scene().Select(hips);
  }

  ImportHTROptions options;
  MessageSink sink;
  ImportHTR importer{options, sink, platform::ModuleHandle()};
};

void PrepareBasePosition(Stage& stage) {
  stage.options.keyBasePosition = true;
  stage.options.frameOffset = 3;
  stage.options.scaleFactor = 2;
  stage.scene().SetMillimetersPerUnit(10);
}

void PrepareEndEffectors(Stage& stage) {
  stage.options.endEffectors = true;
  stage.options.animate = false;
  stage.options.size = 3;
  stage.options.scaleFactor = 2;
}

void PrepareApply(Stage& stage) {
  stage.options.apply = true;
  stage.AddSkeleton();
}

// The leg alone.
void PrepareBranchTcb(Stage& stage) {
  stage.options.apply = true;
  stage.options.rotationController = 1;
  stage.AddSkeleton();
  stage.scene().ClearSelection();
  stage.scene().Select(*stage.scene().FindByName("Leg"));
}

// --- Create ---

TEST(ImportHTRJournal, Create) {
  Stage stage;
  Expect("create", stage.Import());
}

TEST(ImportHTRJournal, CreateWithTcbControllers) {
  Stage stage;
  stage.options.rotationController = 1;
  Expect("create_tcb", stage.Import());
}

TEST(ImportHTRJournal, CreateWithBasePosition) {
  Stage stage;
  PrepareBasePosition(stage);
  Expect("create_base_position", stage.Import());
}

TEST(ImportHTRJournal, CreateWithBasePositionAlone) {
  Stage stage;
  stage.options.keyBasePosition = true;
  stage.options.animate = false;
  Expect("create_base_position_alone", stage.Import());
}

TEST(ImportHTRJournal, CreateWithEndEffectors) {
  Stage stage;
  PrepareEndEffectors(stage);
  Expect("create_end_effectors", stage.Import());
}

TEST(ImportHTRJournal, CreateWithTheDialog) {
  Stage stage;
  HtrText file = TwoBones();
  file.segments.pop_back();
  file.scale_factor = "2";
  file.frame_rate = 2400;
  Expect("create_with_dialog", stage.ImportWith(
                                   [](host::ScriptedDialog& dialog) {
                                     dialog.Click(kRange);
                                     dialog.Type(kFrom, "0");
                                     dialog.Click(kOk);
                                     dialog.Type(kFrom, "2");
                                     dialog.Click(kSetFrameRate);
                                     dialog.Click(kOk);
                                   },
                                   file));
}

// --- Apply ---

TEST(ImportHTRJournal, Apply) {
  Stage stage;
  PrepareApply(stage);
  Expect("apply", stage.Import());
}

TEST(ImportHTRJournal, ApplyABranchWithTcbControllers) {
  Stage stage;
  PrepareBranchTcb(stage);
  Expect("apply_branch_tcb", stage.Import());
}

TEST(ImportHTRJournal, ApplyToAGroup) {
  Stage stage;
  stage.options.apply = true;
  stage.options.keyBasePosition = true;
  host::Node& group = test::AddDummy(stage.scene(), "Group");
  test::AddDummy(stage.scene(), "Leg", &group);
  test::AddBone(stage.scene(), "Spine", &group);
  stage.scene().Select(group);
  Expect("apply_to_group", stage.Import());
}

TEST(ImportHTRJournal, ApplyQuietlyWithNothingToKey) {
  Stage stage;
  stage.options.apply = true;
  stage.options.animate = false;
  stage.AddSkeleton();
  Expect("apply_nothing", stage.Import());
}

TEST(ImportHTRJournal, ApplyWithTheDialog) {
  Stage stage;
  stage.AddSkeleton();
  HtrText file = TwoBones();
  file.segments.pop_back();
  Expect("apply_with_dialog", stage.ImportWith(
                                  [](host::ScriptedDialog& dialog) {
                                    dialog.Click(kApply);
                                    dialog.Click(kOk);
                                  },
                                  file));
}

// --- Refused and cancelled ---

using Import = test::Disturbed<Stage>;

TEST(ImportHTRJournal, CreateRefused) {
  const Import create{"create", [](Stage&) {}};
  JournalLines lines;
  for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}) {
    Append(lines, create.WithoutValue(n));
  }
  for (const int n : {1, 2, 3}) Append(lines, create.WithoutInstance(n));
  for (const int n : {1, 2, 3}) Append(lines, create.WithoutNode(n));

  const Import base{"create_base_position", PrepareBasePosition};
  for (const int n : {5, 6}) Append(lines, base.WithoutValue(n));

  const Import effectors{"create_end_effectors", PrepareEndEffectors};
  Append(lines, effectors.WithoutInstance(3));
  Append(lines, effectors.WithoutNode(3));
  Expect("create_refused", lines);
}

TEST(ImportHTRJournal, CreateCanceled) {
  const Import create{"create", [](Stage&) {}};
  Expect("create_cancelled", create.CancelledAt(1));
}

TEST(ImportHTRJournal, CanceledInTheDialog) {
  Stage stage;
  HtrText file = TwoBones();
  file.first_frame = 7;
  Expect("cancelled_in_dialog",
         stage.ImportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); }, file));
}

TEST(ImportHTRJournal, ApplyRefused) {
  const Import apply{"apply", PrepareApply};
  JournalLines lines;
  for (const int n : {1, 2, 3, 4, 5, 6, 7, 8}) {
    Append(lines, apply.WithoutValue(n));
  }
  Append(lines,
         apply.When("nothing is selected", [](Stage& stage) { stage.scene().ClearSelection(); }));
  Append(lines, apply.When("the second node selected is a character's", [](Stage& stage) {
    host::Node& leg = *stage.scene().FindByName("Leg");
    leg.Transform()->SetClassId({37206, 0});
    stage.scene().Select(leg);
  }));
  Append(lines, apply.When("the bone has another name", [](Stage& stage) {
    stage.scene().FindByName("Hips")->SetName("Pelvis");
  }));
  Expect("apply_refused", lines);
}

TEST(ImportHTRJournal, TcbControllersRefused) {
  const Import apply{"apply_branch_tcb", PrepareBranchTcb};
  JournalLines lines;
  Append(lines, apply.WithoutInstance(1));
  Append(lines, apply.When("it is not installed", [](Stage& stage) {
    stage.scene().Faults().RefuseRotationInstallation(true);
  }));
  Expect("apply_branch_tcb_refused", lines);
}

TEST(ImportHTRJournal, FileRefused) {
  Stage stage;
  HtrText file = TwoBones();
  file.segments[1].name = "Hips";
  Expect("file_refused", stage.Import(file));
}

// --- Exceptions ---

// Thrown by any call of the host and the system, of nodes, controllers, objects and dialogs.
TEST(ImportHTRJournal, NothingThrownLeavesTheImporter) {
  const int calls = test::EachCallFailing<Stage>([](Stage& stage) {
    PrepareEndEffectors(stage);
    stage.options.animate = true;
    stage.options.keyBasePosition = true;
    stage.options.rotationController = 1;
    (void)stage.ImportWith([](host::ScriptedDialog& dialog) {
      dialog.Click(kSetFrameRate);
      dialog.Click(kOk);
    });
  });
  EXPECT_GT(calls, 150);
}

}  // namespace
}  // namespace orvane
