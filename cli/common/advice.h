#pragma once

#include <string>

// What to do about a message: one line after the texts of the reader and the plug-in, which stand
// as they are.

namespace cli {

// Returns an empty text when there is nothing to add to `message`.
std::string AdviceFor(const std::string& message);

// The same, for a message that an export met.
std::string AdviceForExport(const std::string& message);

}  // namespace cli
