#pragma once

#include <cstddef>
#include <optional>

#include "inspect/check/trc_widths.h"

// Whether the rows of a TRC file have the columns that its line of names asks for. Where a column
// is missing in all rows, or stands there without a name, every value behind it is another
// marker's. Fields count from 1; nothing fails.

namespace orvane::trc {

// How many fields the rows have when names up to field `named` ask for others: none of the rows is
// as wide, or all of them end inside a sample, or most have values behind the last marker's.
// Nothing when they fit.
[[nodiscard]] std::optional<std::size_t> FieldsThatMisfit(const TrcWidths& widths,
                                                          std::size_t named);

}  // namespace orvane::trc
