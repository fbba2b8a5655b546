#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/trc/read_observer.h"

// The markers of a TRC file, without its frames.

namespace orvane {

struct TrcMarkerName {
  std::string name;
  TRCPlace place;
};

// Adds the markers of the file that starts with `header`, which ends before its frames or behind
// them, to `markers`, in the document's order. Returns why the reader refuses the file; an empty
// text when it does not, whether there are markers or not.
std::string ListTrcMarkers(std::string_view header, std::vector<TrcMarkerName>& markers);

}  // namespace orvane
