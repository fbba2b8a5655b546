#include "cli/convert/batch_log_reader.h"

#include <filesystem>

#include "platform/path_text.h"

namespace cli {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHeaderEnd = " files...\n";
constexpr std::string_view kDoneStart = "file: ";

// Of several files the plug-in is told the folder and the names. Between them it puts a separator,
// also where the folder ends with one.
std::string LoggedPath(std::string source, bool is_alone) {
  const std::string root = platform::TextOf(platform::PathOf(source).root_path());
  const bool is_in_root = source.find_first_of("/\\", root.size()) == std::string::npos;
  if (is_in_root && !is_alone)
    source.insert(root.size(), 1, static_cast<char>(fs::path::preferred_separator));
  return source;
}

// The length of the reader's report of the file `path` that `log` begins with, in front of the line
// `done`; 0 when there is none. The log takes the path for a format, so that only what stands
// before its first conversion is sure to be there.
std::size_t LengthOfReport(std::string_view log, std::string_view path, const std::string& done) {
  if (!log.starts_with(path.substr(0, path.find('%')))) return 0;
  const std::size_t line_end = log.find("\n" + done);
  return line_end == std::string_view::npos ? 0 : line_end + 1;
}

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
  std::size_t start = header_end + kHeaderEnd.size();
  for (const std::string& source : sources) {
    const std::string path = LoggedPath(source, sources.size() == 1);
    const std::string done = std::string(kDoneStart) + path + " done.\n";
    const std::size_t report = LengthOfReport(log.substr(start), path, done);
    if (!log.substr(start + report).starts_with(done)) break;
    const std::string message = report == 0 ? "" : ReaderMessage(log.substr(start, report));
    start += report + done.size();
    files.push_back({message, start});
  }
  return files;
}

}  // namespace cli
