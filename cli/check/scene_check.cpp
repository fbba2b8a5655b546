#include "cli/check/scene_check.h"

#include "cli/common/messages.h"
#include "cli/common/scene_input.h"
#include "cli/export/told_export.h"
#include "cli/export/told_skins.h"

namespace cli {

orvane::FileReport CheckSceneForExport(const std::string& file,
                                       const std::vector<std::string>& names) {
  host::Scene scene;
  const host::gltf::SkinReading reading = ReadSceneOrSkins(file, {}, scene);
  const SelectionMade selection = Select(scene, names);
  for (const Complaint& complaint : selection.complaints) Print(Severity::kWarning, complaint);
  orvane::FileReport report = ReportOnExport(file, scene, {}, selection.unknown);
  report.Take(ReportOnSkins(file, scene, reading));
  return report;
}

}  // namespace cli
