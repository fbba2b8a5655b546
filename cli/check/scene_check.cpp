#include "cli/check/scene_check.h"

#include "cli/common/messages.h"
#include "cli/common/scene_input.h"
#include "cli/export/told_export.h"

namespace cli {

orvane::FileReport CheckSceneForExport(const std::string& file,
                                       const std::vector<std::string>& names) {
  host::Scene scene;
  ReadSceneFile(file, scene);
  const SelectionMade selection = Select(scene, names);
  for (const Complaint& complaint : selection.complaints) Print(Severity::kWarning, complaint);
  return ReportOnExport(file, scene, {}, selection.unknown);
}

}  // namespace cli
