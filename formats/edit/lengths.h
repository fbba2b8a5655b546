#pragma once

#include <cstdint>

#include "formats/htr/document.h"
#include "formats/trc/document.h"

// Other units of length.
//
// Nothing fails but for want of memory. May be called from any thread, as long as no other one
// changes the documents.
namespace orvane {

// Converts all lengths of `document`, of all its frames, into the unit `code` of formats/units, and
// stores that as its unit; gaps stay gaps. An inch is 25.4 mm, a foot 304.8 mm and a yard 914.4 mm,
// as they are outside of these files; LengthFactor, by which files are imported, has another foot
// and yard. REQUIRES: both units are known.
void ConvertLengths(HtrDocument& document, std::uint32_t code);
void ConvertLengths(TRCDocument& document, std::uint32_t code);

}  // namespace orvane
