#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/checked_file.h"
#include "inspect/check/trc_markers.h"

// The check of mapping files, alone and against the markers of a capture. The reader reads them as
// it always does; docs/formats/mnm.md lists the codes.

namespace orvane {

// Checks `bytes`, which are those of the mapping file that is known as `file`.
CheckedFile CheckMapping(const std::string& file, std::string_view bytes);

// A capture whose markers are to be mapped.
struct MappedCapture {
  std::string file;  // the name it is known as
  std::vector<TrcMarkerName> markers;
};

// Checks the mapping file as above, and what it makes of the markers of `capture`. Returns what is
// found in either, in that order.
std::vector<CheckedFile> CheckMapping(const std::string& file, std::string_view bytes,
                                      const MappedCapture& capture);

}  // namespace orvane
