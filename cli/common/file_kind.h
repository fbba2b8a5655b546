#pragma once

#include <optional>
#include <string>

// The kinds of file that the program tells apart.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

enum class FileKind { kHtr, kTrc };

// The kind of the file `name`: TRC by its extension in either case, otherwise HTR.
[[nodiscard]] FileKind KindOf(const std::string& name);

// The extension as classes of the plug-in give it: "HTR".
[[nodiscard]] const char* ExtensionOf(FileKind kind);

// Adds the option "--as" to `verb`, which sets `kind`; it must outlive the parsing.
void AddKindChoice(CLI::App& verb, std::optional<FileKind>& kind);

}  // namespace cli
