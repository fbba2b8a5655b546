#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/convert/conversion.h"

// What came of a conversion, for a person and for a program.

namespace cli {

// A table with a line for each file, and how many were converted. What the report on the mapping
// has found, if there is one, is counted with each file that was looked at.
void PrintConversionPage(const std::vector<Conversion>& conversions,
                         const std::optional<orvane::FileReport>& mapping, std::ostream& out);

// `logs` are the files that hold the plug-in's own logs; `mapping` is the report on the mapping, if
// there is one.
void PrintConversionJson(const std::vector<Conversion>& conversions,
                         const std::vector<std::string>& logs,
                         const std::optional<orvane::FileReport>& mapping, std::ostream& out);

}  // namespace cli
