#pragma once

#include <string>

#include "host/gltf/reader.h"
#include "host/scene/scene.h"
#include "inspect/report/report.h"

// What is told of a glTF file of any maker before a skeleton of it is exported.

namespace cli {

// What came of reading `file` into `scene`; nothing to tell when that keeps a scene of ours.
[[nodiscard]] orvane::FileReport ReportOnSkins(const std::string& file, const host::Scene& scene,
                                               const host::gltf::SkinReading& reading);

}  // namespace cli
