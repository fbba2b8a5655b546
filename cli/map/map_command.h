#pragma once

#include "cli/common/failure.h"

// `orvane map`: marker name mappings.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`; parsing it sets `work`, which must outlive the parsing.
void AddMapCommand(CLI::App& app, Work& work);

}  // namespace cli
