#pragma once

#include <string>
#include <vector>

#include "cli/convert/conversion.h"
#include "cli/convert/conversion_order.h"

// The conversion of some files by one run of the plug-in, or several where one gives up, from the
// look at the inputs to the delivery of the outputs.

namespace cli {

struct ConvertedBatch {
  std::vector<Conversion> conversions;
  // That of the plug-in, with a line of the program's own behind a file that the plug-in took for
  // done and that did not come about; empty when it has not kept one.
  std::string log;
};

// Carries `conversions` out, which make a batch.
// REQUIRES: there are some, and they are planned.
[[nodiscard]] ConvertedBatch ConvertBatch(const ConversionOrder& order,
                                          std::vector<Conversion> conversions);

}  // namespace cli
