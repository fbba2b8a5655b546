#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/common/failure.h"

// The files that the user of a verb means by the names of files and folders.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Which files of a folder count, and how the verb calls what it does with them.
struct FileSearch {
  std::vector<std::string_view> extensions;  // of those that count, such as ".htr", in either case
  std::string infinitive;                    // "check"
  std::string participle;                    // "checked"
  bool recursive = false;                    // folders in the folder are looked into
};

// Adds the flag "--recursive" to `verb`, which sets `recursive`; it must outlive the parsing.
void AddRecursive(CLI::App& verb, bool& recursive);

// Whether `input` is a folder that is there.
[[nodiscard]] bool IsFolder(const std::string& input);

// What a folder, or several inputs, stand for.
struct FoundFiles {
  std::vector<std::string> names;
  std::vector<Complaint> notes;   // what is left out, and why
  std::vector<Complaint> errors;  // what could not be looked into, or holds nothing
};

// The files that count in `folder`, by their names below it and in the order of these. A folder
// that is met twice, as links make it, is looked into once.
[[nodiscard]] FoundFiles FilesIn(const std::string& folder, const FileSearch& search);

// The files that `inputs` stand for, in their order: of a folder those in it, otherwise the input
// itself. A file that comes again is left out.
[[nodiscard]] FoundFiles FindFiles(const std::vector<std::string>& inputs,
                                   const FileSearch& search);

// Says on standard error what was left out.
void PrintNotes(const FoundFiles& found);

}  // namespace cli
