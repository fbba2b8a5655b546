#include <gtest/gtest.h>

#include "platform/module.h"
#include "plugin/export_htr/export_htr.h"
#include "plugin/resources/resource.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/posix/journal/disturbed.h"
#include "tests/support/posix/journal/each_call_failing.h"
#include "tests/support/posix/journal/journal_stage.h"

// What an export asks of its host, call by call.

namespace orvane {
namespace {

using test::Append;
using test::JournalLines;

constexpr int kCurrentPose = IDC_CURRENT_POSE;
constexpr int kRange = IDC_RANGE;
constexpr int kFrom = IDC_FROM;
constexpr int kOffset = IDC_OFFSET;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;

void Expect(const std::string& name, const JournalLines& lines) {
  test::ExpectJournal(ORVANE_SOURCE_DIR "/tests/plugin/export_htr/posix/journals/" + name + ".txt",
                      lines);
}

// An exporter, which the tests tell its options, and a skeleton under a group that is selected. The
// animation range begins within frame 2 and ends within frame 3.
struct Stage : test::JournalStage {
  Stage() {
    scene().Animation().SetRange(Interval(9, 14));
    test::SetBoneLength(hips, 10);
    test::SetBoneLength(leg, 20);
    test::AddBone(scene(), "Leg_Effector", &leg);
    group.Transform()->Scale().SetConstant(Point3(2, 2, 2));
    scene().Select(group);
    journal.WatchFile(Path(), "out.htr");
    journal.Take();
  }

  std::string Path() const { return folder.File("out.htr"); }

  JournalLines Export(int suppress_prompts = 1) {
    return LinesOf(exporter.DoExport(Path().c_str(), nullptr, &host, suppress_prompts, 0));
  }
  JournalLines Run() { return Export(); }
  JournalLines ExportWith(const test::Desk::DialogAnswer& user) {
    desk.Expect(user);
    return Export(0);
  }

  host::Node& group = test::AddDummy(scene(), "Group");
  host::Node& prop = test::AddDummy(scene(), "Prop", &group);
  host::Node& hips = test::AddBone(scene(), "Hips", &group);
  host::Node& leg = test::AddBone(scene(), "Leg", &hips);
  ExportHTROptions options;
  MessageSink sink;
  ExportHTR exporter{options, sink, platform::ModuleHandle()};
};

using ExportRun = test::Disturbed<Stage>;

void KeepBase(host::Node& node) {
  float value = 1;
  for (const char* key : {"HTRBaseTransX", "HTRBaseTransY", "HTRBaseTransZ", "HTRBaseRotX",
                          "HTRBaseRotY", "HTRBaseRotZ", "HTRBaseLength"}) {
    node.SetUserPropertyFloat(key, value++);
  }
}

void PrepareCurrentPose(Stage& stage) { stage.options.savedPose = false; }

TEST(ExportHTRJournal, CurrentPose) {
  Stage stage;
  PrepareCurrentPose(stage);
  Expect("current_pose", stage.Export());
}

TEST(ExportHTRJournal, SavedPose) {
  Stage stage;
  KeepBase(stage.hips);
  stage.leg.SetUserPropertyFloat("HTRBaseTransX", 1);
  stage.options.parentTransforms = false;
  stage.options.scaleFactor = 3;
  stage.options.frameOffset = 1;
  stage.scene().SetMillimetersPerUnit(10);
  Expect("saved_pose", stage.Export());
}

TEST(ExportHTRJournal, WithoutAnimation) {
  Stage stage;
  KeepBase(stage.hips);
  stage.options.animate = false;
  stage.scene().ClearSelection();
  stage.scene().Select(stage.hips);
  Expect("without_animation", stage.Export());
}

TEST(ExportHTRJournal, WithTheDialog) {
  Stage stage;
  stage.scene().ClearSelection();
  stage.scene().Select(stage.leg);
  Expect("with_dialog", stage.ExportWith([](host::ScriptedDialog& dialog) {
    dialog.Click(kCurrentPose);
    dialog.Click(kRange);
    dialog.Type(kFrom, "1");
    dialog.Click(kOk);
    dialog.Type(kFrom, "3");
    dialog.Type(kOffset, "5");
    dialog.Type(kGlobal, "2.5");
    dialog.Click(kOk);
  }));
}

TEST(ExportHTRJournal, CanceledInTheDialog) {
  Stage stage;
  Expect("cancelled_in_dialog",
         stage.ExportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); }));
}

TEST(ExportHTRJournal, Refused) {
  const ExportRun current{"current_pose", PrepareCurrentPose};
  JournalLines lines;
  Append(lines,
         current.When("nothing is selected", [](Stage& stage) { stage.scene().ClearSelection(); }));
  Append(lines, current.When("the node selected has no bone below it", [](Stage& stage) {
    stage.scene().ClearSelection();
    stage.scene().Select(stage.prop);
  }));
  Append(lines, current.When("the root's name has a blank",
                             [](Stage& stage) { stage.hips.SetName("Hips 1"); }));
  Append(lines, current.When("a bone has the name of the root",
                             [](Stage& stage) { stage.leg.SetName("Hips"); }));
  Append(lines, current.When("an object stands beside its node", [](Stage& stage) {
    Matrix3 offset;
    offset.SetRow(3, Point3(1, 0, 0));
    stage.leg.SetObjectOffset(offset);
  }));
  Append(lines, current.When("the file cannot be created", [](Stage& stage) {
    std::filesystem::create_directory(stage.Path() + "/");
  }));
  Expect("refused", lines);
}

// Thrown by any call of the host and the system, of nodes, objects and dialogs.
TEST(ExportHTRJournal, NothingThrownLeavesTheExporter) {
  const int calls = test::EachCallFailing<Stage>([](Stage& stage) {
    KeepBase(stage.hips);
    (void)stage.ExportWith([](host::ScriptedDialog& dialog) { dialog.Click(kOk); });
  });
  EXPECT_GT(calls, 60);
}

}  // namespace
}  // namespace orvane
