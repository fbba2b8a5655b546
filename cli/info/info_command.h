#pragma once

#include "cli/common/failure.h"

// `orvane info`: tells what a motion file holds. It reads the file alone and needs no host.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`. When the arguments ask for it, `work` is what they ask for.
void AddInfoCommand(CLI::App& app, Work& work);

}  // namespace cli
