#pragma once

#include <memory>

#include "cli/common/failure.h"

// The program's verbs and flags, as the parser knows them: what the program reads its arguments
// with, and what its help, its manual and the completion of its command lines are made of.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// A parser that sets `work` when it parses; `work` must outlive that.
[[nodiscard]] std::unique_ptr<CLI::App> MakeParser(Work& work);

}  // namespace cli
