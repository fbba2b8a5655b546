#pragma once

#include "cli/common/failure.h"

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb `export` to `app`. When the arguments ask for it, `work` is set to it.
void AddExportCommand(CLI::App& app, Work& work);

}  // namespace cli
