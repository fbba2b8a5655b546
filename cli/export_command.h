#pragma once

#include "cli/command_line.h"

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb `export` to `app`. When the arguments ask for it, `work` is set to it.
void AddExportCommand(CLI::App& app, Work& work);

}  // namespace cli
