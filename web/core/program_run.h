#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace web {

// Runs the program with these arguments, which begin with a verb, over the files that there are.
// While the plug-in shows how far it is, the page is told after every `pause` and may cancel, and
// this process sleeps meanwhile: the call returns to JavaScript before it is done. Returns the exit
// status. REQUIRES: no other run goes on.
[[nodiscard]] int RunVerb(const std::vector<std::string>& arguments,
                          std::chrono::milliseconds pause);

}  // namespace web
