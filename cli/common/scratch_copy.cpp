#include "cli/common/scratch_copy.h"

#include <optional>

#include "cli/common/failure.h"
#include "formats/text/files.h"
#include "formats/trc/turned_text.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"

namespace cli {
namespace {

// A folder that is to be put away.
const std::string& HoldingInterrupts(const std::string& place) {
  platform::HoldInterrupts();
  return place;
}

}  // namespace

ScratchCopy::ScratchCopy(const std::string& place, const std::string& file, std::string_view bytes)
    : folder_(HoldingInterrupts(place)) {
  if (!folder_.Error().empty()) {
    throw Failure{ExitStatus::kInputOutput, {{place, folder_.Error(), ""}}};
  }
  path_ = platform::TextOf(platform::PathOf(folder_.Path()) / platform::PathOf(file).filename());
  WriteCopy(path_, file, bytes);
}

void WriteCopy(const std::string& path, const std::string& file, std::string_view bytes) {
  std::ofstream stream = orvane::CreateFileForBytes(path);
  stream << bytes << std::flush;
  if (stream) return;
  throw Failure{ExitStatus::kInputOutput,
                {{file, "The copy that the plug-in is to be given could not be written",
                  "Is the disk full, or is the name too long?"}}};
}

std::string TurnedUp(const std::string& file, std::string_view bytes) {
  std::optional<std::string> turned = orvane::TurnZUp(bytes);
  if (turned) return *std::move(turned);
  throw Failure{ExitStatus::kRefused,
                {{file, "--up z cannot turn it: it has lines that are read in pieces",
                  "A line of a TRC file has 10238 bytes at the most, when it is turned, too."}}};
}

}  // namespace cli
