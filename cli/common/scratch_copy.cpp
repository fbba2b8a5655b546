#include "cli/common/scratch_copy.h"

#include <optional>
#include <utility>

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

Complaint ComplainAboutCopy(const std::string& file) {
  return {file, "The copy that the plug-in is to be given could not be written",
          "Is the disk full, or is the name too long?"};
}

std::string NameOf(const InputFile& file) {
  return platform::TextOf(platform::PathOf(file.path).filename());
}

PieceSource OnePiece(std::string_view bytes) {
  return [bytes]() mutable { return std::exchange(bytes, {}); };
}

void WriteAll(const std::string& path, const PieceSource& next, const Complaint& complaint) {
  std::ofstream stream = orvane::CreateFileForBytes(path);
  for (std::string_view piece = next(); stream && !piece.empty(); piece = next()) stream << piece;
  stream.close();
  if (!stream) throw Failure{ExitStatus::kInputOutput, {complaint}};
}

}  // namespace

ScratchCopy::ScratchCopy(const std::string& place, const InputFile& file, std::string_view bytes)
    : ScratchCopy(place, NameOf(file), OnePiece(bytes), ComplainAboutCopy(file.name)) {}

ScratchCopy::ScratchCopy(const std::string& place, const std::string& name, const PieceSource& next,
                         const Complaint& complaint)
    : folder_(HoldingInterrupts(place)) {
  if (!folder_.Error().empty()) {
    throw Failure{ExitStatus::kInputOutput, {{place, folder_.Error(), ""}}};
  }
  path_ = platform::TextOf(platform::PathOf(folder_.Path()) / platform::PathOf(name));
  WriteAll(path_, next, complaint);
}

void WriteCopy(const std::string& path, const std::string& file, std::string_view bytes) {
  WriteAll(path, OnePiece(bytes), ComplainAboutCopy(file));
}

std::string TurnedUp(const std::string& file, std::string_view bytes) {
  std::optional<std::string> turned = orvane::TurnZUp(bytes);
  if (turned) return *std::move(turned);
  throw Failure{ExitStatus::kRefused,
                {{file, "--up z cannot turn it: it has lines that are read in pieces",
                  "A line of a TRC file has 10238 bytes at the most, when it is turned, too."}}};
}

}  // namespace cli
