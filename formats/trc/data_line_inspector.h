#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "formats/text/lines.h"
#include "formats/trc/fields.h"
#include "formats/trc/oddities.h"

// Looks a frame's line over for what the reader lets pass. A second look at the line, made only for
// an observer and where reading met something odd, so that reading need not wonder what it is.
namespace orvane {

class TRCDataLineInspector {
 public:
  // `oddities` knows the line and must outlive this object.
  explicit TRCDataLineInspector(const TRCOddities& oddities) : oddities_(oddities) {}

  // Reports what is odd about `field`, the frame number of the next line.
  void InspectFrameNumber(std::string_view field);
  // Reports what else is odd about a line that holds one frame of `marker_count` markers.
  void Inspect(const Line& line, std::size_t marker_count);

 private:
  void InspectSample(TRCFields& fields);
  void InspectRest(TRCFields& fields);

  const TRCOddities& oddities_;
  std::optional<std::int64_t> previous_number_;
};

}  // namespace orvane
