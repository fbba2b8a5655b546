#pragma once

#include <cstddef>

#include "platform/handles.h"

// The string table in a module's resources.

namespace platform {

// Copies string `id` of `module` into `buffer`, cut to size - 1 characters and always terminated.
// Text outside ASCII arrives in the system's narrow encoding (UTF-8 off Windows). Returns the
// number of characters copied; 0, with an empty `buffer`, when `module` is null or has no such
// string.
// REQUIRES: `buffer` holds `size` characters, 1 or more.
std::size_t LoadStringResource(HINSTANCE module, unsigned int id, char* buffer, std::size_t size);

}  // namespace platform
