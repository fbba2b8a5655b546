#pragma once

#include <string>

#include "formats/trc/document.h"

namespace orvane {

// Walks everything that holds for a marker document that was read, whatever the bytes. Returns an
// empty text, or what is wrong with it.
[[nodiscard]] std::string FindFault(const TRCDocument& document);

}  // namespace orvane
