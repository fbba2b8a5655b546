#pragma once

#include "cli/common/failure.h"

// `orvane convert`: lets the plug-in turn marker files into BVK files.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`. When the arguments ask for it, `work` is what they ask for.
void AddConvertCommand(CLI::App& app, Work& work);

}  // namespace cli
