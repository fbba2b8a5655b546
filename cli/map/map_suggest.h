#pragma once

#include "cli/common/failure.h"

// `orvane map suggest`: makes a mapping of what the names of a capture's markers say. It reads the
// file alone and needs no host.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `map`. When the arguments ask for it, `work` is what they ask for.
void AddMapSuggest(CLI::App& map, Work& work);

}  // namespace cli
