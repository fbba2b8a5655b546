#include "cli/htr_check.h"

#include <algorithm>

#include "cli/check_failure.h"
#include "cli/htr_rules.h"
#include "cli/htr_structure.h"
#include "cli/htr_watcher.h"
#include "cli/text_flaw.h"
#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"

namespace cli {
namespace {

orvane::HtrCell EndOf(std::string_view bytes) {
  const auto breaks = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
  const std::size_t last_break = bytes.rfind('\n');
  const std::size_t last_line = last_break == std::string_view::npos ? 0 : last_break + 1;
  return {{}, breaks + 1, bytes.size() - last_line + 1};
}

// A mark that keeps nothing from being read is no more than what the watcher has told.
void NameFlaw(std::string_view bytes, FindingList& findings) {
  const auto flaw = FindHtrTextFlaw(bytes);
  if (!flaw || findings.Count(FindingSeverity::kError) == 0) return;
  NameFlawFirst(*flaw, htr::kFlaws[static_cast<std::size_t>(*flaw)],
                "The import refuses the file; what else is odd about it is not told.", findings);
}

std::string Contents(const orvane::HtrDocument& document) {
  return CountOf(document.segments().size(), "segment") + ", " +
         CountOf(document.GetNumFrames(), "frame");
}

}  // namespace

CheckedFile CheckHtr(const std::string& file, std::string_view bytes) {
  CheckedFile checked{file, "HTR", {}, {}};
  orvane::HtrDocument document;
  htr::Parts parts;
  parts.end = EndOf(bytes);
  htr::Watcher watcher(parts, checked.findings);
  const std::string message = orvane::ReadHtrBytes(document, bytes, true, &watcher);
  watcher.LeaveSection();
  if (!watcher.HasRefused()) RequireRead(message);
  RequireSound(orvane::FindFault(document));
  if (!watcher.WasStopped()) htr::CheckStructure(document, parts, checked.findings);
  NameFlaw(bytes, checked.findings);
  checked.contents = Contents(document);
  return checked;
}

}  // namespace cli
