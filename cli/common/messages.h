#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/common/failure.h"

// What the program says on standard error, apart from progress.

namespace cli {

enum class Severity { kWarning, kError };

// Prints "orvane: SUBJECT: TEXT" and the advice on a line of its own. On a terminal the program's
// name is coloured by `severity`, unless the environment variable NO_COLOR is set and not empty.
void Print(Severity severity, const Complaint& complaint);

// `text` with every control character written as an escape, so that no file can steer a terminal.
[[nodiscard]] std::string Printable(std::string_view text);

// Prints `complaints`, told on the way to something that succeeded, as warnings. When the user is
// `strict` they are reasons against it: throws a Failure if there are any.
void Warn(std::vector<Complaint> complaints, bool strict);

}  // namespace cli
