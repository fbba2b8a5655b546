#pragma once

#include "cli/common/failure.h"

// `orvane compare`: tells how far two motion files, or two marker files, are from each other. It
// reads the files alone and needs no host.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`. When the arguments ask for it, `work` is what they ask for.
void AddCompareCommand(CLI::App& app, Work& work);

}  // namespace cli
