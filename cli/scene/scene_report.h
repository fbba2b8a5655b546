#pragma once

#include <ostream>
#include <string>

#include "host/scene/scene.h"

// What `orvane scene` tells of the scene from `file`: as a page for people, or all of it as JSON.
// docs/command-line.md documents the fields.

namespace cli {

void PrintScenePage(const std::string& file, const host::Scene& scene, std::ostream& out);
void PrintSceneJson(const std::string& file, const host::Scene& scene, std::ostream& out);

}  // namespace cli
