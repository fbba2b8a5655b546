#include "cli/common/file_kind.h"

#include <CLI/CLI.hpp>
#include <string_view>

#include "cli/common/choice.h"
#include "host/application/extension_match.h"

namespace cli {

std::optional<FileKind> FindNamedKind(const std::string& name) {
  constexpr std::size_t kLength = 4;
  if (name.size() < kLength) return std::nullopt;
  const std::string_view ending = std::string_view(name).substr(name.size() - kLength);
  if (host::SameButForCase(ending, ".trc")) return FileKind::kTrc;
  if (host::SameButForCase(ending, ".htr")) return FileKind::kHtr;
  return std::nullopt;
}

FileKind KindOf(const std::string& name) { return FindNamedKind(name).value_or(FileKind::kHtr); }

const char* ExtensionOf(FileKind kind) { return kind == FileKind::kTrc ? "TRC" : "HTR"; }

void AddKindChoice(CLI::App& verb, std::optional<FileKind>& kind) {
  AddChoice(verb, "--as", {"htr", "trc"}, "What the file is (what its name says)",
            [&kind](const std::string& choice) {
              kind = choice == "trc" ? FileKind::kTrc : FileKind::kHtr;
            });
}

}  // namespace cli
