#pragma once

#include <optional>
#include <string_view>

#include "platform/export.h"

// Numbers that a user types into the host's own edit control, whatever the locale.

namespace host {

// The number that `text` is, as the host's own edit control reads it: the whole text has to be a
// number that fits, but for blanks around it. Nothing when it is none.
[[nodiscard]] SKELDER_API std::optional<float> NumberIn(std::string_view text);

}  // namespace host
