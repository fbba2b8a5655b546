#pragma once

#include <string>

#include "cli/common/failure.h"
#include "cli/convert/conversion.h"
#include "cli/convert/conversion_order.h"

// What the plug-in is given in the place of an input that has to be changed before: some frames of
// it alone, its heights along Y, names of markers without blanks.

namespace cli {

// Whether the plug-in is given another file than the user's.
[[nodiscard]] bool IsChanged(const Conversion& conversion, const ConversionOrder& order);

// The bytes of that file. Throws a Failure about the input when it cannot be read or changed.
[[nodiscard]] std::string ChangedBytes(const Conversion& conversion, const ConversionOrder& order);

// Settles `conversion`, whose input could not be changed because of `failure`.
void SettleUnchanged(Conversion& conversion, const Failure& failure);

}  // namespace cli
