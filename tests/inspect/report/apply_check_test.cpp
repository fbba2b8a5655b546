#include "inspect/report/apply_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/math/euler_rotation.h"
#include "inspect/report/report.h"

namespace {

using orvane::Action;
using orvane::AppliedFile;
using orvane::ApplyCircumstances;
using orvane::ApplyItem;
using orvane::ApplyPlan;
using orvane::ApplyScene;
using orvane::BasePose;
using orvane::BoneShape;
using orvane::FileReport;
using orvane::FindingSeverity;
using orvane::kNoParent;
using orvane::PlanMarkers;
using orvane::PlanMotion;
using orvane::ReportedFinding;
using orvane::Vector3;
using testing::ElementsAre;
using testing::IsEmpty;

BoneShape Bone(double length = 100.0) { return {length, BasePose{Vector3(0, length, 0), {}}}; }

// Hips over Spine over Head.
AppliedFile Skeleton() {
  return {{{"Hips", kNoParent, Bone()}, {"Spine", 0, Bone()}, {"Head", 1, Bone()}}, 0};
}

// The same below a dummy, which is selected.
ApplyScene SkeletonScene() {
  return {{{"walk"}, {"Hips", 0, Bone()}, {"Spine", 1, Bone()}, {"Head", 2, Bone()}}, {0}};
}

AppliedFile Markers(const std::vector<std::string>& names) {
  AppliedFile file;
  for (const std::string& name : names) file.items.push_back({name});
  return file;
}

constexpr ApplyCircumstances kSameRate{.file_rate = 60.0};

FileReport ReportOnMotion(const AppliedFile& file, const ApplyScene& scene,
                          const ApplyCircumstances& how = kSameRate) {
  return ReportOn(CheckApply("a.htr", "HTR", file, scene, PlanMotion(file, scene), how),
                  Action::kApply);
}

FileReport ReportOnMarkers(const AppliedFile& file, const ApplyScene& scene,
                           const ApplyCircumstances& how = kSameRate) {
  return ReportOn(CheckApply("a.trc", "TRC", file, scene, PlanMarkers(file, scene), how),
                  Action::kApply);
}

std::vector<std::string> CodesOf(const FileReport& report) {
  std::vector<std::string> codes;
  for (const ReportedFinding& finding : report.findings) codes.emplace_back(finding.code);
  return codes;
}

ReportedFinding Only(const FileReport& report) {
  EXPECT_EQ(report.findings.size(), 1U);
  return report.findings.empty() ? ReportedFinding{} : report.findings.front();
}

// --- Skeletons ---

TEST(ApplyMotion, WhatFitsIsNotMentioned) {
  EXPECT_THAT(ReportOnMotion(Skeleton(), SkeletonScene()).findings, IsEmpty());
}

TEST(ApplyMotion, ThatStartsBelowTheRootLeavesOutWhatIsNotBelowTheStart) {
  ApplyScene scene = SkeletonScene();
  scene.selected = {2};  // the branch of Spine
  const ReportedFinding spine = Only(ReportOnMotion(Skeleton(), scene));
  EXPECT_EQ(spine.code, "apply-start-below-root");
  EXPECT_EQ(spine.severity, FindingSeverity::kWarning);
  EXPECT_EQ(spine.cause, "A segment of the file is not below \"Spine\", where the motion starts");
  EXPECT_THAT(spine.names, ElementsAre("Hips"));
  EXPECT_EQ(spine.consequence,
            "It moves nothing; select the bone of \"Hips\" to start at the root of the file.");
  scene.selected = {3};
  const ReportedFinding head = Only(ReportOnMotion(Skeleton(), scene));
  EXPECT_EQ(head.cause, "2 segments of the file are not below \"Head\", where the motion starts");
  EXPECT_EQ(head.consequence,
            "They move nothing; select the bone of \"Hips\" to start at the root of the file.");
  EXPECT_THAT(head.names, ElementsAre("Hips", "Spine"));
}

TEST(ApplyMotion, PairsEachSegmentWithTheBoneBelowThatOfItsParent) {
  const ApplyPlan plan = PlanMotion(Skeleton(), SkeletonScene());
  ASSERT_EQ(plan.pairs.size(), 3U);
  EXPECT_EQ(plan.pairs[2].item, 2U);
  EXPECT_EQ(plan.pairs[2].node, 3U);
}

TEST(ApplyMotion, ASegmentWithoutItsBoneIsLeftOutWithAllBelowIt) {
  ApplyScene scene = SkeletonScene();
  scene.nodes[2].name = "spine";
  const FileReport report = ReportOnMotion(Skeleton(), scene);
  EXPECT_THAT(CodesOf(report),
              ElementsAre("apply-name-missing-in-scene", "apply-name-missing-in-file"));
  const ReportedFinding& missing = report.findings[0];
  EXPECT_EQ(missing.severity, FindingSeverity::kWarning);
  EXPECT_EQ(missing.count, 2U);
  EXPECT_EQ(missing.line, 0U);
  EXPECT_THAT(missing.names, ElementsAre("Spine", "Head"));
  EXPECT_EQ(missing.cause, "2 names of the file are not among what it is applied to");
  EXPECT_EQ(missing.consequence,
            "What has such a name is left out; a bone counts below the bone of its parent, and the "
            "case of letters counts.");
  EXPECT_EQ(report.findings[1].severity, FindingSeverity::kNote);
  EXPECT_THAT(report.findings[1].names, ElementsAre("spine"));
}

TEST(ApplyMotion, EffectorsAreNotMissed) {
  ApplyScene scene = SkeletonScene();
  scene.nodes.push_back({"Head_Effector", 3, Bone()});
  EXPECT_THAT(ReportOnMotion(Skeleton(), scene).findings, IsEmpty());
}

TEST(ApplyMotion, TheRootGoesToTheSelectedSkeletonWhateverItsName) {
  ApplyScene scene = SkeletonScene();
  scene.nodes[1].name = "Pelvis";
  const ReportedFinding finding = Only(ReportOnMotion(Skeleton(), scene));
  EXPECT_EQ(finding.code, "apply-root-name-differs");
  EXPECT_EQ(finding.severity, FindingSeverity::kNote);
  EXPECT_EQ(finding.cause, "The motion of \"Hips\" goes to a node of another name");
  EXPECT_THAT(finding.names, ElementsAre("Pelvis"));
}

TEST(ApplyMotion, ThatNoNameMatchesIsToldOnce) {
  const ApplyScene scene{{{"Box"}, {"Lid", 0}}, {0}};
  const ReportedFinding finding = Only(ReportOnMotion(Skeleton(), scene));
  EXPECT_EQ(finding.code, "apply-nothing-matches");
  EXPECT_EQ(finding.consequence,
            "The motion of \"Hips\" goes to the node that is selected, and all other motion is "
            "left out.");
}

TEST(ApplyMotion, WhatThePluginRefusesItTellsItself) {
  ApplyScene scene = SkeletonScene();
  scene.selected.clear();
  EXPECT_EQ(PlanMotion(Skeleton(), scene).start, ApplyPlan::Start::kNothingSelected);
  EXPECT_THAT(ReportOnMotion(Skeleton(), scene).findings, IsEmpty());
  scene.selected = {3};
  scene.nodes[3].name = "Tail";
  EXPECT_EQ(PlanMotion(Skeleton(), scene).start, ApplyPlan::Start::kNameUnknown);
  EXPECT_THAT(ReportOnMotion(Skeleton(), scene).findings, IsEmpty());
}

TEST(ApplyMotion, TakesSegmentsThatAreTheirOwnAncestors) {
  AppliedFile file = Skeleton();
  file.items.push_back({"Snake", 4, Bone()});
  file.items.push_back({"Tail", 3, Bone()});
  ApplyScene scene = SkeletonScene();
  scene.nodes.push_back({"Snake", 0, Bone()});
  scene.selected = {4};
  const FileReport report = ReportOnMotion(file, scene);
  ASSERT_THAT(CodesOf(report),
              ElementsAre("apply-name-missing-in-scene", "apply-start-below-root"));
  EXPECT_THAT(report.findings[0].names, ElementsAre("Tail"));
}

TEST(ApplyMotion, AnotherActorsBonesAreANoteWithTheirNumberAndTheLargestDifference) {
  ApplyScene scene = SkeletonScene();
  scene.nodes[2].shape = Bone(90.0);
  scene.nodes[3].shape = Bone(112.5);
  const ReportedFinding finding = Only(ReportOnMotion(Skeleton(), scene));
  EXPECT_EQ(finding.code, "apply-bone-differs");
  EXPECT_EQ(finding.severity, FindingSeverity::kNote);
  EXPECT_EQ(finding.count, 2U);
  EXPECT_EQ(finding.cause,
            "2 bones differ from the file's in length or base, by 12.5 mm at the most");
  EXPECT_THAT(finding.names, ElementsAre("Head", "Spine"));
}

TEST(ApplyMotion, ABoneThatIsTurnedDiffersInDegrees) {
  ApplyScene scene = SkeletonScene();
  scene.nodes[2].shape->base->rotation =
      orvane::RotationMatrix3(orvane::EulerRotation(0.0, 0.0, 0.5235987755982988));
  EXPECT_EQ(Only(ReportOnMotion(Skeleton(), scene)).cause,
            "A bone differs from the file's in length or base, by 30.0 degrees");
}

TEST(ApplyMotion, OfABoneThatNoImportHasMadeTheLengthIsCompared) {
  ApplyScene scene = SkeletonScene();
  scene.nodes[2].shape = BoneShape{100.0, {}};
  EXPECT_THAT(ReportOnMotion(Skeleton(), scene).findings, IsEmpty());
}

// --- Markers ---

TEST(ApplyMarkers, SelectedObjectsAndTheirChildrenAreFound) {
  const ApplyScene scene{{{"Cloud"}, {"LFHD", 0}, {"RFHD"}}, {0, 2}};
  EXPECT_THAT(ReportOnMarkers(Markers({"LFHD", "RFHD"}), scene).findings, IsEmpty());
}

TEST(ApplyMarkers, TheOthersGetNewObjects) {
  const ApplyScene scene{{{"LFHD"}, {"Spare"}}, {0, 1}};
  const FileReport report = ReportOnMarkers(Markers({"LFHD", "RFHD"}), scene);
  EXPECT_THAT(CodesOf(report),
              ElementsAre("apply-name-missing-in-scene", "apply-name-missing-in-file"));
  EXPECT_THAT(report.findings[0].names, ElementsAre("RFHD"));
  EXPECT_EQ(report.findings[0].consequence,
            "Such a marker gets a new object; selected objects and their children are looked at.");
  EXPECT_THAT(report.findings[1].names, ElementsAre("Spare"));
}

TEST(ApplyMarkers, OrAllMoveTheLastSelectedObject) {
  ApplyCircumstances how = kSameRate;
  how.selected_only = true;
  const ApplyScene scene{{{"LFHD"}, {"Box"}}, {0, 1}};
  EXPECT_EQ(ReportOnMarkers(Markers({"LFHD", "RFHD"}), scene, how).findings[0].consequence,
            "Such a marker moves the last selected object, \"Box\"; selected objects and their "
            "children are looked at.");
}

TEST(ApplyMarkers, NothingSelectedIsOneFinding) {
  const AppliedFile file = Markers({"LFHD", "RFHD"});
  const ReportedFinding finding = Only(ReportOnMarkers(file, {{{"LFHD"}}, {}}));
  EXPECT_EQ(finding.code, "apply-nothing-selected");
  EXPECT_EQ(finding.consequence,
            "Every marker gets a new object; --into SCENE --select NAME selects in a scene of "
            "yours.");
  ApplyCircumstances how = kSameRate;
  how.selected_only = true;
  EXPECT_EQ(Only(ReportOnMarkers(file, {{{"LFHD"}}, {}}, how)).consequence,
            "Nothing is imported; --into SCENE --select NAME selects in a scene of yours.");
}

TEST(ApplyMarkers, ThatNoNameMatchesIsToldOnce) {
  const ApplyScene scene{{{"Cloud"}, {"a", 0}}, {0}};
  const FileReport report = ReportOnMarkers(Markers({"LFHD", "RFHD"}), scene);
  EXPECT_EQ(Only(report).code, "apply-nothing-matches");
  EXPECT_EQ(Only(report).consequence,
            "Every marker gets a new object; selected objects and their children are looked at.");
}

// --- Time ---

struct Rates {
  double file;
  double scene;
  std::string cause;
  std::string consequence;
};

TEST(ApplyRates, ThatDifferTellTheSpeed) {
  const std::string advice = "; --frame-rate file gives the scene the rate of the file.";
  const std::vector<Rates> cases = {
      {120.0, 60.0, "There are 120 frames per second in the file, 60 in the scene",
       "The motion plays at half speed" + advice},
      {30.0, 60.0, "There are 30 frames per second in the file, 60 in the scene",
       "The motion plays at double speed" + advice},
      {100.0, 30.0, "There are 100 frames per second in the file, 30 in the scene",
       "The motion plays at 0.3 times its speed" + advice},
      {59.94, 60.0, "There are 59.94 frames per second in the file, 60 in the scene",
       "The motion plays at 1.001 times its speed" + advice},
      {60.0, 4800.0 / 19, "There are 60 frames per second in the file, 252.6 in the scene",
       "The motion plays at 4.2 times its speed" + advice},
  };
  for (const Rates& its : cases) {
    const ApplyCircumstances how{.file_rate = its.file, .scene_rate = its.scene};
    for (const ReportedFinding& finding :
         {Only(ReportOnMotion(Skeleton(), SkeletonScene(), how)),
          Only(ReportOn(CheckImport("a.htr", "HTR", how), Action::kImport))}) {
      EXPECT_EQ(finding.code, "apply-rate-differs");
      EXPECT_EQ(finding.severity, FindingSeverity::kWarning);
      EXPECT_EQ(finding.cause, its.cause);
      EXPECT_EQ(finding.consequence, its.consequence);
    }
  }
}

TEST(ApplyRange, ThatDoesNotBeginWithTheFileMovesItsFirstFrames) {
  ApplyCircumstances how = kSameRate;
  how.first_frame = 1;
  how.range_from = 1;
  EXPECT_THAT(CheckImport("a.htr", "HTR", how).findings.Sorted(), IsEmpty());
  how.range_from = 11;
  for (const Action action : {Action::kImport, Action::kApply}) {
    const ReportedFinding finding = Only(ReportOn(CheckImport("a.htr", "HTR", how), action));
    EXPECT_EQ(finding.code, "apply-range-moves");
    EXPECT_EQ(finding.severity, FindingSeverity::kWarning);
    EXPECT_EQ(finding.cause, "--range begins in frame 11, and the file in frame 1");
    EXPECT_EQ(finding.consequence,
              "A range of a motion file says when, and not what: frame 1 is keyed in frame 11, and "
              "those behind it follow.");
  }
}

TEST(ApplyTime, ThatTakesTheScenesOwnAwayTellsHowLongItLastsThen) {
  const struct {
    orvane::TimeChange change;
    std::string cause;
    std::string minute;
  } rows[] = {
      {{59.94, 4800.0 / 81, 60.0},
       "Viewers are shown 59.94 frames per second of the scene, and the file has 60",
       "60.7"},
      {{250.0, 4800.0 / 19, {}},
       "Viewers are shown 250 frames per second of the scene, and the host's time is asked for",
       "59.4"}};
  for (const auto& [change, cause, minute] : rows) {
    ApplyCircumstances how = kSameRate;
    how.time_change = change;
    for (const Action action : {Action::kImport, Action::kApply}) {
      const ReportedFinding finding = Only(ReportOn(CheckImport("a.htr", "HTR", how), action));
      EXPECT_EQ(finding.code, "apply-scene-time");
      EXPECT_EQ(finding.severity, FindingSeverity::kWarning);
      EXPECT_EQ(finding.cause, cause);
      EXPECT_EQ(finding.consequence,
                "All of the scene goes by the host's time: a minute of what was there lasts " +
                    minute + " s.");
    }
  }
}

TEST(ApplyTime, ThatChangesNothingIsNotTold) {
  ApplyCircumstances how = kSameRate;
  how.time_change = {60.0, 60.0, 120.0};
  EXPECT_THAT(CheckImport("a.htr", "HTR", how).findings.Sorted(), IsEmpty());
}

}  // namespace
