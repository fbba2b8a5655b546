#pragma once

#include <string>

#include "plugin/htr/document.h"

namespace test {

// Walks everything that holds for any motion document, whatever was read into it. Returns an empty
// text, or what is wrong with it.
std::string FindFault(orvane::HtrDocument& document);

}  // namespace test
