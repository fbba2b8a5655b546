#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/input_file.h"
#include "cli/common/streamed_file.h"

// The files that a verb reads, standard input among them.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the flag "--name" to `verb`, which sets `name`; it must outlive the parsing.
void AddStreamName(CLI::App& verb, std::string& name);

class InputFiles {
 public:
  // Of `inputs`, which may also stand for folders; what is streamed in is called `name`, if that is
  // not empty. Nothing is read yet. Throws a Failure for wrong usage when a stream is among them
  // twice, and when there is not one stream to be called so.
  InputFiles(const std::vector<std::string>& inputs, const std::string& name);

  // How what the user means by `input` is called.
  [[nodiscard]] std::string NameOf(const std::string& input) const;

  // The extension (".htr") that says what `input` is: its own, or what its content shows of a
  // stream that is not called by one. Empty when nothing shows it.
  [[nodiscard]] std::string ExtensionOf(const std::string& input);

  // The kind of `input`: `given`, when there is one, or what its name or content says; nothing when
  // that is not known.
  [[nodiscard]] std::optional<FileKind> FindKind(const std::string& input,
                                                 std::optional<FileKind> given);

  // The same. Throws a Failure for wrong usage when it is not known.
  [[nodiscard]] FileKind KindOf(const std::string& input, std::optional<FileKind> given);

  // The file that the user means by `input`, as the reader of `kind` takes it. Throws a Failure
  // that says why when it cannot be read. It lives as long as this.
  [[nodiscard]] InputFile Find(const std::string& input, FileKind kind);

  // The same of a mapping, to whose name no reader adds anything.
  [[nodiscard]] InputFile FindMapping(const std::string& input);

 private:
  // Null when `input` is a file.
  StreamedFile* FindStream(const std::string& input);

  std::map<std::string, StreamedFile> streams_;  // by their inputs
};

// That what `input` stands for in words ("a standing scene") is to be a file, when it is standard
// input. Throws that as a Failure for wrong usage.
void RequireNoStandardInput(const std::string& input, const std::string& words);

// That nobody knows what `name` is: wrong usage. `kinds` are those that --as takes.
[[nodiscard]] Failure UnknownKind(const std::string& name, const std::string& kinds);

}  // namespace cli
