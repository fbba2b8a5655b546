#pragma once

#include <string>

#include "formats/trc/document.h"
#include "plugin/utilities/convert_bvk_settings.h"

// The marker files that a conversion makes.
namespace orvane {

// Writes `document` as a marker file to `path`, with an offset if `settings` say so. An existing
// file is emptied first. Returns false when it cannot be created.
[[nodiscard]] bool WriteMarkerFile(const std::string& path, const TRCDocument& document,
                                   const ConvertBVKSettings& settings);

}  // namespace orvane
