#pragma once

#include "cli/rewrite/prepared_file.h"
#include "formats/htr/document.h"

// BVH files of motion files.

namespace cli {

// The file of the one root of `document`, or of that which the order names. The document must be
// there and the same until it is printed.
[[nodiscard]] PreparedFile PrepareBvh(const orvane::HtrDocument& document, const Wording& wording);

}  // namespace cli
