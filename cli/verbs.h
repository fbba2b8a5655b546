#pragma once

#include "cli/common/failure.h"

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verbs to `app`, each of which sets `work` when it is given: all of them in
// program_verbs.cpp, and in page_verbs.cpp those that a page has a use for. What only the others
// need is no part of a page.
void AddVerbs(CLI::App& app, Work& work);

}  // namespace cli
