#pragma once

#include <string>
#include <vector>

#include "formats/trc/read_observer.h"

// The markers of a TRC file, without its frames.

namespace cli {

struct TrcMarkerName {
  std::string name;
  orvane::TRCPlace place;
};

// In the document's order. Throws a Failure when `file` cannot be read, or holds no markers.
std::vector<TrcMarkerName> ReadTrcMarkers(const std::string& file);

}  // namespace cli
