#include "cli/common/input.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "cli/common/advice.h"
#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/known_messages.h"
#include "formats/htr/reader.h"
#include "formats/text/files.h"
#include "inspect/check/content_kind.h"
#include "inspect/check/started_source.h"
#include "platform/input_file.h"
#include "platform/path_text.h"

namespace cli {
namespace {

// The start of `file`, as far as it shows what is wrong with all of its text; nothing when it
// cannot be read.
std::optional<std::string> ReadStart(const std::string& file) {
  orvane::FileSource source(file);
  if (!source.IsOpen()) return std::nullopt;
  orvane::StartedSource started(source);
  std::string start(started.Start());
  if (source.HasFailed()) return std::nullopt;
  return start;
}

// What is wrong with all of the text of `file`, where that can be seen.
std::optional<Complaint> FindCause(const InputFile& file, FileKind kind) {
  const std::optional<std::string> bytes = ReadStart(file.path);
  if (!bytes) return std::nullopt;
  const bool is_htr = kind == FileKind::kHtr;
  const auto wanted = is_htr ? orvane::ContentKind::kHtr : orvane::ContentKind::kTrc;
  if (const auto other = orvane::FindOtherKind(*bytes, wanted)) {
    return Complaint{file.name,
                     orvane::DescribeOtherKind(*other, is_htr ? "an HTR file" : "a TRC file"),
                     orvane::WordsFor(*other).advice};
  }
  const auto flaw = is_htr ? orvane::FindHtrTextFlaw(*bytes) : orvane::FindTextFlaw(*bytes);
  if (!flaw) return std::nullopt;
  return ComplainAboutFlaw(file.name, *flaw);
}

}  // namespace

Complaint FindWhyUnreadable(const std::string& name, const std::string& file) {
  const std::string reason = platform::WhyUnreadable(file);
  if (reason.empty()) return {};
  std::error_code error;  // such as that a path is too long
  if (std::filesystem::is_directory(platform::PathOf(name), error)) {
    return {name, platform::WhyUnreadable(name), ""};
  }
  if (file == name) return {file, reason, ""};
  return {
      file, reason,
      "A name without an extension of three letters gets \"" + file.substr(name.size()) + "\"."};
}

std::string FileMeantBy(const std::string& name, FileKind kind) {
  // The readers differ in the case of what they append.
  return orvane::WithExtension(name, kind == FileKind::kTrc ? ".TRC" : ".htr");
}

std::string ReadableFile(const std::string& name, FileKind kind) {
  const std::string file = FileMeantBy(name, kind);
  const Complaint complaint = FindWhyUnreadable(name, file);
  if (complaint.text.empty()) return file;
  // The user means this one, and is told what it is.
  if (complaint.subject != name && FindCause(FileAt(name), kind)) return name;
  throw Failure{ExitStatus::kInputOutput, {complaint}};
}

Complaint ComplainAbout(const std::string& file, const std::string& text) {
  return {file, text, AdviceFor(text)};
}

Complaint ComplainAboutFlaw(const std::string& file, orvane::TextFlaw flaw) {
  const orvane::TextFlawWords& words = orvane::WordsFor(flaw);
  return {file, words.text, words.advice};
}

std::vector<Complaint> ComplainAboutRefusal(const InputFile& file, FileKind kind,
                                            const std::string& text) {
  const std::optional<Complaint> cause = FindCause(file, kind);
  if (!cause) return {ComplainAbout(file.name, text)};
  // That nothing is found in such a file is no news.
  if (text == kNoSegments || text == kNoMarkers) return {*cause};
  return {*cause, ComplainAbout(file.name, text)};
}

Complaint FindFlaw(const InputFile& file, FileKind kind) {
  // The reason why a marker file is refused has been told, or been found before the import.
  if (kind == FileKind::kTrc) return {};
  orvane::HtrDocument document;
  if (!orvane::ReadHtrFile(document, file.path, false).empty()) return {};
  if (document.segments().empty()) return ComplainAbout(file.name, kNoSegments);
  if (document.FindRootSegment() == nullptr) return ComplainAbout(file.name, kNoRoot);
  return {};
}

std::string FileBytes(const InputFile& file) {
  std::string reason = platform::WhyUnreadable(file.path);
  if (reason.empty()) {
    std::optional<std::string> bytes = orvane::ReadFileBytes(file.path);
    if (bytes) return *std::move(bytes);
    reason = "could not be read to its end";
  }
  throw Failure{ExitStatus::kInputOutput, {{file.name, reason, ""}}};
}

std::string FileBytes(const std::string& file) { return FileBytes(FileAt(file)); }

}  // namespace cli
