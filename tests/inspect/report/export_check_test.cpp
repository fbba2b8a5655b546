#include "inspect/report/export_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "inspect/report/report.h"

namespace {

using orvane::Action;
using orvane::CheckExport;
using orvane::ExportNode;
using orvane::FileReport;
using orvane::FindingSeverity;
using orvane::ReportedFinding;
using testing::ElementsAre;
using testing::IsEmpty;

FileReport ReportOf(const std::vector<ExportNode>& nodes) {
  return ReportOn(CheckExport("scene.glb", nodes), Action::kExport);
}

struct Case {
  std::string name;
  std::vector<ExportNode> nodes;
  std::string code;
  FindingSeverity severity;
  std::vector<std::string> names;
};

void PrintTo(const Case& its, std::ostream* out) { *out << its.name; }

ExportNode Helper(const std::string& name, std::size_t parent) { return {name, parent, false}; }

ExportNode Keyed(ExportNode node) {
  node.scale_changes = true;
  return node;
}

ExportNode Uneven(ExportNode node) {
  node.is_uneven = true;
  return node;
}

ExportNode Sheared(ExportNode node) {
  node.is_sheared = true;
  return node;
}

constexpr FindingSeverity kNote = FindingSeverity::kNote;
constexpr FindingSeverity kWarning = FindingSeverity::kWarning;
constexpr FindingSeverity kError = FindingSeverity::kError;

class ExportCheckTest : public testing::TestWithParam<Case> {};

TEST_P(ExportCheckTest, TellsOneThingAndWhatItIsAbout) {
  const FileReport report = ReportOf(GetParam().nodes);
  ASSERT_EQ(report.findings.size(), 1U);
  const ReportedFinding& finding = report.findings.front();
  EXPECT_EQ(finding.code, GetParam().code);
  EXPECT_EQ(finding.severity, GetParam().severity);
  EXPECT_EQ(finding.names, GetParam().names);
  EXPECT_EQ(finding.count, GetParam().names.size());
}

INSTANTIATE_TEST_SUITE_P(
    Findings, ExportCheckTest,
    testing::Values(
        Case{"KeyedScale",
             {{"Hips"}, Keyed({"Spine", 0})},
             "export-scale-keyed",
             kWarning,
             {"Spine"}},
        Case{"KeyedUnevenScale",
             {{"Hips"}, Keyed(Uneven({"Spine", 0}))},
             "export-scale-keyed",
             kWarning,
             {"Spine"}},
        Case{"UnevenScale",
             {Uneven({"Hips"}), {"Spine", 0}},
             "export-scale-uneven",
             kWarning,
             {"Hips"}},
        Case{"Shear",
             {{"Hips"}, Sheared({"Spine", 0}), Sheared({"Head", 1})},
             "export-shear",
             kWarning,
             {"Spine", "Head"}},
        Case{"HelperAtAnEnd",
             {{"Hips"}, Helper("Prop", 0), Helper("Tip", 1)},
             "export-helper-skipped",
             kNote,
             {"Prop"}},
        Case{"BonesBelowAHelper",
             {{"Hips"}, Helper("Pulley", 0), Helper("Wheel", 1), {"Cable", 2}, {"Load", 3}},
             "export-below-helper",
             kWarning,
             {"Cable", "Load"}},
        Case{"Effector",
             {{"Hips"}, {"Hips_Effector", 0}},
             "export-effector",
             kNote,
             {"Hips_Effector"}},
        Case{"AnEffectorAlone",
             {{"Hook_Effector"}},
             "export-root-effector",
             kError,
             {"Hook_Effector"}},
        Case{"BonesBelowAnEffector",
             {{"Hips"}, {"Effector1", 0}, {"Tail", 1}},
             "export-below-effector",
             kWarning,
             {"Tail"}},
        Case{"Blank",
             {{"Hips"}, {"Left Arm", 0}, {"Hand", 1}},
             "export-name-refused",
             kWarning,
             {"Left Arm"}},
        Case{"NameTwice",
             {{"Hips"}, {"Arm", 0}, {"Arm", 0}, {"Hand", 2}},
             "export-name-refused",
             kWarning,
             {"Arm"}},
        Case{"OtherNamesInTheFile",
             {{"Hips"}, {"Arm]2", 0}, {"GLOBAL", 0}, {"[Leg", 0}},
             "export-name-changed",
             kError,
             {"Arm]2", "GLOBAL", "[Leg"}},
        Case{"WordsOfTheFile",
             {{"Hips"}, {"Header", 0}, {"EndOfFile", 0}, {"a#b", 0}},
             "export-name-changed",
             kError,
             {"Header", "EndOfFile", "a#b"}}),
    [](const auto& each) { return each.param.name; });

TEST(ExportCheck, WhatFitsIsNotMentioned) {
  EXPECT_THAT(ReportOf({{"Hips"}, {"Spine", 0}, {"Head", 1}}).findings, IsEmpty());
}

TEST(ExportCheck, NoSkeletonIsAnError) {
  const FileReport report = ReportOf({});
  ASSERT_EQ(report.findings.size(), 1U);
  EXPECT_EQ(report.findings.front().code, "export-root-missing");
  EXPECT_EQ(report.findings.front().severity, kError);
}

TEST(ExportCheck, WhatIsLeftOutIsNotJudged) {
  const FileReport report =
      ReportOf({{"Hips"}, Helper("Pulley", 0), Keyed({"Ca#ble", 1}), {"Ca#ble", 2}});
  ASSERT_EQ(report.findings.size(), 1U);
  EXPECT_EQ(report.findings.front().code, "export-below-helper");
}

}  // namespace
