#pragma once

#include "cli/common/failure.h"

// `orvane check`: names everything in a file that the reader lets pass or refuses. It reads the
// files alone and needs no host.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`. When the arguments ask for it, `work` is what they ask for.
void AddCheckCommand(CLI::App& app, Work& work);

}  // namespace cli
