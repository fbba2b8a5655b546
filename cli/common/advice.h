#pragma once

#include <string>
#include <string_view>

// What to do about a message: one line after the texts of the reader and the plug-in, which stand
// as they are.

namespace cli {

// Returns an empty text when there is nothing to add to `message`.
[[nodiscard]] std::string AdviceFor(std::string_view message);

// The same, for a message that an export met.
[[nodiscard]] std::string AdviceForExport(std::string_view message);

}  // namespace cli
