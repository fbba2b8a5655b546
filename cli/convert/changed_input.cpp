#include "cli/convert/changed_input.h"

#include <map>
#include <optional>
#include <utility>

#include "cli/common/cut_frames.h"
#include "cli/common/input.h"
#include "cli/common/scratch_copy.h"
#include "formats/trc/document.h"
#include "formats/trc/renamed_text.h"
#include "inspect/counts/frame_span.h"
#include "inspect/summary/trc_outline.h"

namespace cli {
namespace {

// What the reader refuses is left to the plug-in, which tells why.
std::string WithFrames(const orvane::FrameSpan& asked, const std::string& file, std::string bytes) {
  orvane::TRCDocument document;
  if (!document.ReadBytes(bytes, false).empty()) return bytes;
  const orvane::FrameSpan frames = Overlap(asked, FramesHeld(orvane::OutlineTrc(bytes)));
  return frames.IsEmpty() ? bytes : CutOut(file, bytes, document, frames);
}

std::string Renamed(const std::map<std::string, std::string>& names, const std::string& file,
                    const std::string& bytes) {
  std::optional<std::string> renamed = orvane::RenameTrcMarkers(bytes, names);
  if (renamed) return *std::move(renamed);
  throw Failure{ExitStatus::kRefused,
                {{file, "--names cannot rename its markers: their line is read in pieces",
                  "A line has 10238 bytes at the most, when they are renamed, too."}}};
}

}  // namespace

bool IsChanged(const Conversion& conversion, const ConversionOrder& order) {
  return conversion.z_up || order.cut || !conversion.match.Unmappable().empty();
}

std::string ChangedBytes(const Conversion& conversion, const ConversionOrder& order) {
  const std::string& file = conversion.input;
  std::string bytes = FileBytes(conversion.File());
  if (order.cut) bytes = WithFrames(*order.cut, file, std::move(bytes));
  if (conversion.z_up) bytes = TurnedUp(file, bytes);
  const std::map<std::string, std::string> names = conversion.match.Unmappable();
  return names.empty() ? bytes : Renamed(names, file, bytes);
}

void SettleUnchanged(Conversion& conversion, const Failure& failure) {
  const bool is_refused = failure.status == ExitStatus::kRefused;
  conversion.status = is_refused ? ConversionStatus::kRefused : ConversionStatus::kFailed;
  conversion.errors = failure.complaints;
}

}  // namespace cli
