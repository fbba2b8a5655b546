#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/trc/read_observer.h"
#include "inspect/check/checked_file.h"
#include "inspect/mapping/name_matching.h"

// The check of mapping files, alone and against the markers of a capture. The reader reads them as
// it always does; docs/formats/mnm.md lists the codes. Lines and columns, in bytes, count from 1.
// What is returned holds copies, so that bytes and captures may go. Nothing fails but for want of
// memory. May be called from any thread.

namespace orvane {

// Checks `bytes`, which are those of the mapping file that is known as `file`.
[[nodiscard]] CheckedFile CheckMapping(const std::string& file, std::string_view bytes);

// A marker of a TRC file, and where its name stands.
struct TrcMarkerName {
  std::string name;
  TRCPlace place;
};

// Adds the markers of the TRC file that starts with `header`, which ends before its frames or
// behind them, to `markers`, in the document's order. Returns why the reader refuses the file; an
// empty text when it does not, whether there are markers or not.
[[nodiscard]] std::string ListTrcMarkers(std::string_view header,
                                         std::vector<TrcMarkerName>& markers);

// A capture whose markers are to be mapped.
struct MappedCapture {
  std::string file;  // the name it is known as
  std::vector<TrcMarkerName> markers;
  NameMatch
      match{};  // the names that are taken for those of the mapping; none: as they are written
};

// Checks the mapping file as above, and what it makes of the markers of `capture`. Returns what is
// found in either, in that order. What would help a mapping that fits nothing is told, too.
[[nodiscard]] std::vector<CheckedFile> CheckMapping(const std::string& file, std::string_view bytes,
                                                    const MappedCapture& capture);

}  // namespace orvane
