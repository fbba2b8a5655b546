#include "cli/common/file_kind.h"

#include <CLI/CLI.hpp>

#include "cli/common/choice.h"
#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "formats/text/files.h"
#include "host/application/extension_match.h"
#include "platform/input_file.h"

namespace cli {

FileKind KindOf(const std::string& name) {
  constexpr std::size_t kLength = 4;
  if (name.size() < kLength) return FileKind::kHtr;
  const std::string_view ending = std::string_view(name).substr(name.size() - kLength);
  return host::SameButForCase(ending, ".trc") ? FileKind::kTrc : FileKind::kHtr;
}

const char* ExtensionOf(FileKind kind) { return kind == FileKind::kTrc ? "TRC" : "HTR"; }

std::string ReadableFile(const std::string& name, FileKind kind) {
  // The readers differ in the case of what they append.
  const std::string extension = kind == FileKind::kTrc ? ".TRC" : ".htr";
  const std::string file = orvane::WithExtension(name, extension);
  const std::string reason = platform::WhyUnreadable(file);
  if (!reason.empty() && file != name) {
    if (auto cause = FindCause(name, kind)) throw Failure{ExitStatus::kInputOutput, {*cause}};
  }
  const std::string advice =
      file == name ? ""
                   : "A name without an extension of three letters gets \"" + extension + "\".";
  if (!reason.empty()) throw Failure{ExitStatus::kInputOutput, {{file, reason, advice}}};
  return file;
}

void AddKindChoice(CLI::App& verb, std::optional<FileKind>& kind) {
  AddChoice(verb, "--as", {"htr", "trc"}, "What the file is (what its name says)",
            [&kind](const std::string& choice) {
              kind = choice == "trc" ? FileKind::kTrc : FileKind::kHtr;
            });
}

}  // namespace cli
