#pragma once

#include <string>
#include <vector>

#include "inspect/report/report.h"

// What an export of a scene file would lose, told without an export.

namespace cli {

// What an export by the defaults of `orvane export` makes of the scene in `file`, of the nodes that
// are selected in it or, when there are `names`, of those. Throws a Failure when the file cannot be
// read, or is refused.
[[nodiscard]] orvane::FileReport CheckSceneForExport(const std::string& file,
                                                     const std::vector<std::string>& names);

}  // namespace cli
