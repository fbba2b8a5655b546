#include "cli/common/input_files.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "cli/common/input.h"
#include "host/application/extension_match.h"
#include "inspect/check/content_kind.h"
#include "inspect/check/text_flaw.h"
#include "platform/path_text.h"

namespace cli {
namespace {

constexpr std::array<std::string_view, 3> kExtensions = {".htr", ".trc", ".mnm"};

std::string OwnExtension(const std::string& name) {
  return platform::TextOf(platform::PathOf(name).extension());
}

bool IsKnown(const std::string& extension) {
  return std::any_of(kExtensions.begin(), kExtensions.end(), [&extension](std::string_view known) {
    return host::SameButForCase(known, extension);
  });
}

// What is none of these, and can be seen to be something else, is told of as an HTR file is.
std::string ExtensionFor(std::string_view start) {
  const auto kind = orvane::FindContentKind(start);
  if (kind == orvane::ContentKind::kTrc) return ".trc";
  if (kind == orvane::ContentKind::kMnm) return ".mnm";
  return kind || orvane::FindTextFlaw(start) ? ".htr" : "";
}

// Why `name` cannot be that of a file in any folder; empty when it can.
std::string WhyNoName(const std::string& name) {
  constexpr std::size_t kMostBytes = 251;  // of 255, which file systems take, for an extension
  const auto is_control = [](char letter) {
    const auto code = static_cast<unsigned char>(letter);
    return code < 0x20 || code == 0x7f;
  };
  if (name.empty()) return "takes a name that is not empty";
  if (name == "." || name == "..") return "takes the name of a file, and " + name + " is a folder";
  if (name.find_first_of("/\\") != std::string::npos) return "takes a name without folders";
  if (std::any_of(name.begin(), name.end(), is_control)) {
    return "takes a name without control characters";
  }
  return name.size() > kMostBytes ? "takes a name of 251 bytes at the most" : "";
}

Failure WrongUsage(const Complaint& complaint) { return {ExitStatus::kWrongUsage, {complaint}}; }

}  // namespace

void AddStreamName(CLI::App& verb, std::string& name) {
  verb.add_option("--name", name,
                  "What standard input, given as -, is called: the name of a file (stdin)")
      ->check(WhyNoName, "")
      ->type_name("NAME");
}

InputFiles::InputFiles(const std::vector<std::string>& inputs, const std::string& name) {
  std::set<platform::InputStream> streams;
  for (const std::string& input : inputs) {
    const auto stream = StreamOf(input);
    if (!stream) continue;
    if (!streams.insert(*stream).second) {
      throw WrongUsage({input, "is given twice, and can be read but once", ""});
    }
    streams_.try_emplace(input, input, name);
  }
  if (name.empty() || streams.size() == 1) return;
  throw WrongUsage(
      {"--name",
       streams.empty() ? "is for standard input, and only files are given" : "is for one input",
       streams.empty() ? "- in the place of FILE is standard input." : ""});
}

std::string InputFiles::NameOf(const std::string& input) const {
  const auto stream = streams_.find(input);
  return stream == streams_.end() ? input : stream->second.Name();
}

std::string InputFiles::ExtensionOf(const std::string& input) {
  StreamedFile* stream = FindStream(input);
  if (stream == nullptr) return OwnExtension(input);
  const std::string own = OwnExtension(stream->Name());
  return IsKnown(own) ? own : ExtensionFor(stream->Start());
}

std::optional<FileKind> InputFiles::FindKind(const std::string& input,
                                             std::optional<FileKind> given) {
  if (given) return given;
  if (FindStream(input) == nullptr) return cli::KindOf(input);
  const std::string extension = ExtensionOf(input);
  if (extension.empty()) return std::nullopt;
  return cli::KindOf(extension);
}

FileKind InputFiles::KindOf(const std::string& input, std::optional<FileKind> given) {
  const std::optional<FileKind> kind = FindKind(input, given);
  if (kind) return *kind;
  throw UnknownKind(NameOf(input), "--as htr or --as trc");
}

InputFile InputFiles::Find(const std::string& input, FileKind kind) {
  StreamedFile* stream = FindStream(input);
  if (stream == nullptr) return FileAt(ReadableFile(input, kind));
  return stream->Keep(kind == FileKind::kTrc ? ".trc" : ".htr");
}

InputFile InputFiles::FindMapping(const std::string& input) {
  StreamedFile* stream = FindStream(input);
  return stream == nullptr ? FileAt(input) : stream->Keep(".mnm");
}

StreamedFile* InputFiles::FindStream(const std::string& input) {
  const auto stream = streams_.find(input);
  return stream == streams_.end() ? nullptr : &stream->second;
}

void RequireNoStandardInput(const std::string& input, const std::string& words) {
  if (input != "-") return;
  throw WrongUsage({input, words + " is not read from standard input",
                    "Give the name of a file; one that is called - is \"./-\"."});
}

Failure UnknownKind(const std::string& name, const std::string& kinds) {
  return WrongUsage({name, "What it is cannot be seen from its first lines", kinds + " says it."});
}

}  // namespace cli
