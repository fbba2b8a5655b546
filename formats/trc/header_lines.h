#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "formats/text/lines.h"
#include "formats/trc/document.h"
#include "formats/trc/oddities.h"

// The lines of a marker file that come before its frames. Belongs to the reader.
namespace orvane {

// What the header says that the document does not keep.
struct TRCHeader {
  std::int32_t path_type = 0;
  std::int32_t announced_markers = 0;
  TRCPlace announced_markers_place;  // when the reading is watched
};

// The path types that say where the first frame's number stands; any other means frame 1.
inline constexpr std::int32_t kFirstFrameInData = 3;
inline constexpr std::int32_t kFirstFrameInHeader = 4;

// The file-type line: stores the path type. Returns an empty text, or the message when the file's
// coordinates are none that this reader takes.
[[nodiscard]] std::string ReadFileTypeLine(const Line& line, TRCHeader& header,
                                           const TRCOddities& oddities);

// The line of header values.
void ReadHeaderValues(const Line& line, TRCHeader& header, TRCDocument& document,
                      const TRCOddities& oddities);

// The line of marker names: adds the markers. Returns an empty text, or the message when there are
// fewer or more than announced and that matters, which it does with `include_unnamed`.
[[nodiscard]] std::string ReadMarkerNames(const Line& line, const TRCHeader& header,
                                          bool include_unnamed, TRCDocument& document,
                                          const TRCOddities& oddities);

// The line of coordinate headings, which is only looked at.
void InspectSubHeader(const Line& line, const TRCOddities& oddities);

}  // namespace orvane
