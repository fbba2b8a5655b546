#include "cli/batch_log_reader.h"

namespace cli {
namespace {

constexpr std::string_view kHeaderEnd = " files...\n";

}  // namespace

// The path in the report may look like anything, because the log takes it for a format; but the
// reader's words have no colon.
std::string ReaderMessage(std::string_view report) {
  while (report.ends_with('\n')) report.remove_suffix(1);
  const std::size_t colon = report.rfind(": ");
  return std::string(colon == std::string_view::npos ? report : report.substr(colon + 2));
}

std::vector<LoggedFile> ReadBatchLog(std::string_view log,
                                     const std::vector<std::string>& sources) {
  std::vector<LoggedFile> files;
  const std::size_t header_end = log.find(kHeaderEnd);
  if (header_end == std::string_view::npos) return files;
  log.remove_prefix(header_end + kHeaderEnd.size());
  for (const std::string& source : sources) {
    const std::string done = "file: " + source + " done.\n";
    const std::size_t at = log.find(done);
    if (at == std::string_view::npos) break;
    files.push_back({at == 0 ? "" : ReaderMessage(log.substr(0, at))});
    log.remove_prefix(at + done.size());
  }
  return files;
}

}  // namespace cli
