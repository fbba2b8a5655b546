#include "cli/common/streamed_file.h"

#include <cassert>
#include <filesystem>
#include <system_error>
#include <utility>

#include "cli/common/failure.h"
#include "cli/common/messages.h"
#include "formats/text/files.h"
#include "inspect/check/content_kind.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using platform::InputStream;
using platform::kStandardInput;

constexpr char kStandardName[] = "stdin";
constexpr std::size_t kPiece = std::size_t{64} << 10U;

InputStream Require(std::optional<InputStream> stream) {
  assert(stream);
  return *stream;
}

std::string NameFor(const std::string& input, std::string name) {
  if (!name.empty()) return name;
  return StreamOf(input) == kStandardInput ? kStandardName : input;
}

// Nothing is to lie beside what the user has.
std::string FolderForCopies() {
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
  if (!error) return platform::TextOf(folder);
  throw Failure{ExitStatus::kInputOutput,
                {{platform::TextOf(folder), error.message(),
                  "Standard input is kept in the system's folder for temporary files."}}};
}

}  // namespace

std::optional<InputStream> StreamOf(const std::string& input) {
  if (input == "-") return kStandardInput;
  return platform::StreamNamed(input);
}

StreamedFile::StreamedFile(const std::string& input, std::string name)
    : stream_(Require(StreamOf(input))),
      name_(NameFor(input, name)),
      kept_name_(name.empty() ? kStandardName : std::move(name)) {}

const std::string& StreamedFile::Start() {
  if (start_) return *start_;
  platform::CatchInterrupts();
  if (platform::IsTerminal(stream_)) {
    Print(Severity::kWarning, {name_,
                               std::string("is read from the terminal: ") +
                                   platform::KeysThatEndInput() + " at the start of a line ends it",
                               ""});
  }
  std::string start;
  while (start.size() < orvane::kBytesThatShowKind && !is_at_end_) start += Next();
  return start_.emplace(std::move(start));
}

InputFile StreamedFile::Keep(const std::string& extension) {
  if (!copy_) {
    std::string_view start = Start();
    const auto next = [this, &start] {
      return start.empty() ? Next() : std::exchange(start, std::string_view());
    };
    const std::string folder = FolderForCopies();
    copy_.emplace(folder, orvane::WithExtension(kept_name_, extension), next,
                  Complaint{name_, "could not be kept in a file in " + folder,
                            "Is the disk full, or is the name too long?"});
  }
  return {name_, copy_->Path()};
}

std::string_view StreamedFile::Next() {
  if (is_at_end_) return {};
  piece_.resize(kPiece);
  const platform::ReadBytes read = platform::ReadSome(stream_, piece_.data(), piece_.size());
  StopIfInterrupted();
  if (!read.error.empty()) throw Failure{ExitStatus::kInputOutput, {{name_, read.error, ""}}};
  is_at_end_ = read.count == 0;
  return std::string_view(piece_).substr(0, read.count);
}

}  // namespace cli
