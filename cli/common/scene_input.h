#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "host/gltf/reader.h"
#include "host/scene/scene.h"
#include "inspect/report/selection_check.h"

// The scene file that a verb starts from, and what the user selects in it before the plug-in is
// asked.

namespace cli {

// Builds the scene in the file `path` in `scene`. Throws a Failure when the file cannot be read or
// holds no such scene.
// REQUIRES: `scene` is new.
void ReadSceneFile(const std::string& path, host::Scene& scene);

// The same of any glTF file: what keeps no scene of ours has its skeletons made by `options`, and
// what came of them is returned.
[[nodiscard]] host::gltf::SkinReading ReadSceneOrSkins(const std::string& path,
                                                       const host::gltf::SkinOptions& options,
                                                       host::Scene& scene);

struct SelectionMade {
  std::vector<orvane::UnknownName> unknown;  // names that no node bears, each once
  std::vector<Complaint> complaints;         // of names that several nodes bear
};

// Selects the nodes of these names, each the first of its name in the order of `orvane scene`. What
// was selected stays so unless there are names. Returns what to tell the user.
[[nodiscard]] SelectionMade Select(host::Scene& scene, const std::vector<std::string>& names);

// The names that no node bears, for a user who wants no report.
[[nodiscard]] std::vector<Complaint> ComplainAbout(const std::vector<orvane::UnknownName>& unknown);

}  // namespace cli
