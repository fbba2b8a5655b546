#pragma once

#include "cli/rewrite/prepared_file.h"
#include "formats/trc/document.h"

// C3D files of marker files.

namespace cli {

// The document must be there and the same until the file is printed. Its heights lie along the axis
// that the order names.
[[nodiscard]] PreparedFile PrepareC3d(const orvane::TRCDocument& document, const Wording& wording);

}  // namespace cli
