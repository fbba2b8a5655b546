#include "cli/input.h"

#include "cli/advice.h"
#include "cli/file_kind.h"
#include "plugin/htr/reader.h"

namespace cli {

std::string ReadableHtrFile(const std::string& name) { return ReadableFile(name, FileKind::kHtr); }

Complaint ComplainAbout(const std::string& file, const std::string& text) {
  return {file, text, AdviceFor(text)};
}

Complaint FindFlaw(const std::string& file, FileKind kind) {
  // The reason why a marker file is refused has been told, or been found before the import.
  if (kind == FileKind::kTrc) return {};
  orvane::HtrDocument document;
  if (!orvane::ReadHtrFile(document, file, false).empty()) return {};
  if (document.segments().empty()) return ComplainAbout(file, kNoSegments);
  if (document.FindRootSegment() == nullptr) return ComplainAbout(file, kNoRoot);
  return {};
}

}  // namespace cli
