#include "cli/export/told_export.h"

#include "cli/export/export_range.h"
#include "cli/export/exported_nodes.h"
#include "inspect/report/export_check.h"

namespace cli {

orvane::FileReport ReportOnExport(const std::string& file, const host::Scene& scene,
                                  const ExportChoices& choices,
                                  const std::vector<orvane::UnknownName>& unknown) {
  constexpr auto kAction = orvane::Action::kExport;
  if (!unknown.empty()) {
    return ReportOn(CheckSelection(file, orvane::kSceneKind, kAction, unknown, false), kAction);
  }
  RequireSensibleRange(file, scene, choices);
  return ReportOn(
      orvane::CheckExport(file, DescribeExport(scene, choices), DescribeFrames(scene, choices)),
      kAction);
}

}  // namespace cli
