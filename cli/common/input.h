#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "inspect/check/text_flaw.h"

// The file that a verb reads, and how it is refused.

namespace cli {

// The file that the user means by `name`, as the reader takes it: with ".htr" behind it unless it
// has an extension of three letters. Throws a Failure that says why when it cannot be read.
[[nodiscard]] std::string ReadableHtrFile(const std::string& name);

// `text` about what is in `file`, with the advice that fits it.
[[nodiscard]] Complaint ComplainAbout(const std::string& file, const std::string& text);

// `flaw` of `file`, with advice.
[[nodiscard]] Complaint ComplainAboutFlaw(const std::string& file, orvane::TextFlaw flaw);

// What is wrong with all of the text of `file`, where that can be seen.
[[nodiscard]] std::optional<Complaint> FindCause(const std::string& file, FileKind kind);

// Puts before `complaints` about what is in `file`, if there are any, what is wrong with all of its
// text, when that can be seen and does not stand there.
void PutCauseFirst(const std::string& file, FileKind kind, std::vector<Complaint>& complaints);

// `text`, for which `file` is refused, with advice, and with its cause first.
[[nodiscard]] std::vector<Complaint> ComplainAboutRefusal(const std::string& file, FileKind kind,
                                                          const std::string& text);

// Looks in `file` for a reason why the plug-in made nothing of it, beside what it said itself.
// Returns a complaint without text when there is none to see.
[[nodiscard]] Complaint FindFlaw(const std::string& file, FileKind kind);

// All bytes of `file`. Throws a Failure that says why when it cannot be read to its end.
[[nodiscard]] std::string FileBytes(const std::string& file);

}  // namespace cli
