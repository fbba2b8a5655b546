#include "cli/htr_check.h"

#include <algorithm>
#include <optional>

#include "cli/failure.h"
#include "cli/htr_structure.h"
#include "cli/htr_watcher.h"
#include "plugin/htr/document_checker.h"
#include "plugin/htr/reader.h"
#include "plugin/text/files.h"

namespace cli {
namespace {

orvane::HtrCell EndOf(std::string_view bytes) {
  const auto breaks = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
  const std::size_t last_break = bytes.rfind('\n');
  const std::size_t last_line = last_break == std::string_view::npos ? 0 : last_break + 1;
  return {{}, breaks + 1, bytes.size() - last_line + 1};
}

std::string ReadAll(const std::string& file) {
  std::optional<std::string> bytes = orvane::ReadFileBytes(file);
  if (!bytes) throw Failure{ExitStatus::kInputOutput, {{file, "could not be read to its end", ""}}};
  return *std::move(bytes);
}

std::string Contents(const orvane::HtrDocument& document) {
  return CountOf(document.segments().size(), "segment") + ", " +
         CountOf(document.GetNumFrames(), "frame");
}

// A fault is one of this program, so that nothing it says of the file can be trusted.
void RequireSound(const std::string& file, orvane::HtrDocument& document) {
  const std::string fault = orvane::FindFault(document);
  if (fault.empty()) return;
  throw Failure{
      ExitStatus::kInputOutput,
      {{file, "was read wrongly: " + fault, "This is a fault of orvane; please report it."}}};
}

}  // namespace

CheckedFile CheckHtrFile(const std::string& file) {
  const std::string bytes = ReadAll(file);
  CheckedFile checked{file, "HTR", {}, {}};
  orvane::HtrDocument document;
  htr::Parts parts;
  parts.end = EndOf(bytes);
  htr::Watcher watcher(document, parts, checked.findings);
  const std::string message = orvane::ReadHtrBytes(document, bytes, true, &watcher);
  watcher.LeaveSection();
  if (!message.empty() && !watcher.HasRefused()) {
    throw Failure{ExitStatus::kInputOutput, {{file, message, "There may be too little memory."}}};
  }
  RequireSound(file, document);
  if (!watcher.WasStopped()) htr::CheckStructure(document, parts, checked.findings);
  checked.contents = Contents(document);
  return checked;
}

}  // namespace cli
