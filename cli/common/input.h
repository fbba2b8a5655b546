#pragma once

#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/input_file.h"
#include "inspect/check/text_flaw.h"

// The file that a verb reads, and how it is refused.

namespace cli {

// The file that the reader of `kind` takes `name` for: with ".htr" or ".TRC" behind it unless it
// has an extension of three letters.
[[nodiscard]] std::string FileMeantBy(const std::string& name, FileKind kind);

// The file that the user means by `name`, as the reader of that kind takes it: with ".htr" or
// ".TRC" behind it unless it has an extension of three letters, or is a file of another kind under
// any name. Throws a Failure that says why when it cannot be read.
[[nodiscard]] std::string ReadableFile(const std::string& name, FileKind kind);

// Why what the user means by `name`, which the reader takes for `file`, cannot be read: a folder,
// or no such file, with advice. Returns a complaint without text when it can.
[[nodiscard]] Complaint FindWhyUnreadable(const std::string& name, const std::string& file);

// `text` about what is in `file`, with the advice that fits it.
[[nodiscard]] Complaint ComplainAbout(const std::string& file, const std::string& text);

// `flaw` of `file`, with advice.
[[nodiscard]] Complaint ComplainAboutFlaw(const std::string& file, orvane::TextFlaw flaw);

// `text`, for which `file` is refused, with advice, behind what is wrong with all of its text, when
// that can be seen. For files of which nothing else is told.
[[nodiscard]] std::vector<Complaint> ComplainAboutRefusal(const InputFile& file, FileKind kind,
                                                          const std::string& text);

// Looks in `file` for a reason why the plug-in made nothing of it, beside what it said itself.
// Returns a complaint without text when there is none to see.
[[nodiscard]] Complaint FindFlaw(const InputFile& file, FileKind kind);

// All bytes of `file`. Throws a Failure that says why when it cannot be read to its end.
[[nodiscard]] std::string FileBytes(const InputFile& file);
[[nodiscard]] std::string FileBytes(const std::string& file);

}  // namespace cli
