#include "cli/input.h"

#include "cli/advice.h"
#include "platform/input_file.h"
#include "plugin/htr/reader.h"
#include "plugin/text/files.h"

namespace cli {
std::string ReadableHtrFile(const std::string& name) {
  const std::string file = orvane::WithExtension(name, ".htr");
  const std::string reason = platform::WhyUnreadable(file);
  const std::string advice =
      file == name ? "" : "A name without an extension of three letters gets \".htr\".";
  if (!reason.empty()) throw Failure{ExitStatus::kInputOutput, {{file, reason, advice}}};
  return file;
}

Complaint ComplainAbout(const std::string& file, const std::string& text) {
  return {file, text, AdviceFor(text)};
}

Complaint FindFlaw(const std::string& file) {
  orvane::HtrDocument document;
  if (!orvane::ReadHtrFile(document, file, false).empty()) return {};
  if (document.segments().empty()) return ComplainAbout(file, kNoSegments);
  if (document.FindRootSegment() == nullptr) return ComplainAbout(file, kNoRoot);
  return {};
}

}  // namespace cli
