#pragma once

#include <string>
#include <vector>

#include "cli/export/export_htr_flags.h"
#include "host/scene/scene.h"
#include "inspect/report/report.h"
#include "inspect/report/selection_check.h"

// What is told of a scene before a skeleton of it is exported.

namespace cli {

// What an export by `choices` of what is selected in `scene`, which is that of `file`, will make of
// it. `unknown` are the names that were to be selected. Throws a Failure when the frames are far
// too many, or such as a file cannot hold.
[[nodiscard]] orvane::FileReport ReportOnExport(const std::string& file, const host::Scene& scene,
                                                const ExportChoices& choices,
                                                const std::vector<orvane::UnknownName>& unknown);

}  // namespace cli
