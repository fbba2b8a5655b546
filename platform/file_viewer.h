#pragma once

#include <string>

// What shows a file to the person at this computer: the program that the desktop takes for such
// files.

namespace platform {

// Whether there is a desktop to show files on, as far as that can be told.
[[nodiscard]] bool HasDesktop();

// Has the desktop show the file `path` (UTF-8, absolute), and does not wait for the one who looks
// at it. Returns an empty text, or why that could not be begun.
[[nodiscard]] std::string ShowFile(const std::string& path);

}  // namespace platform
