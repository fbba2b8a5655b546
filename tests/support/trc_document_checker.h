#pragma once

#include <string>

#include "plugin/trc/document.h"

namespace test {

// Walks everything that holds for any marker document that was read without a message. Returns an
// empty text, or what is wrong with it.
std::string FindFault(const orvane::TRCDocument& document);

}  // namespace test
