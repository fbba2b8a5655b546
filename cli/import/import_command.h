#pragma once

#include "cli/common/failure.h"

// `orvane import`: lets the plug-in import a motion or marker file into a scene and writes the
// scene as glTF.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`. When the arguments ask for it, `work` is what they ask for.
void AddImportCommand(CLI::App& app, Work& work);

}  // namespace cli
