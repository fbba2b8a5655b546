#pragma once

#include "cli/rewrite/rewrite_order.h"

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the flags of the verb `rewrite` to it, which fill `order`; it must outlive the parsing.
void AddRewriteFlags(CLI::App& verb, RewriteOrder& order);

}  // namespace cli
