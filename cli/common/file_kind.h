#pragma once

#include <optional>
#include <string>

// The kinds of file that the program tells apart.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

enum class FileKind { kHtr, kTrc };

// The kind that the extension of the file `name` says, in either case; nothing for any other.
[[nodiscard]] std::optional<FileKind> FindNamedKind(const std::string& name);

// The same, and HTR for any other.
[[nodiscard]] FileKind KindOf(const std::string& name);

// The extension as classes of the plug-in give it: "HTR".
[[nodiscard]] const char* ExtensionOf(FileKind kind);

// Adds the option "--as" to `verb`, which sets `kind`; it must outlive the parsing.
void AddKindChoice(CLI::App& verb, std::optional<FileKind>& kind);

}  // namespace cli
