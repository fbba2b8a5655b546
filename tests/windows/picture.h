#pragma once

#include <filesystem>

#include "platform/handles.h"

namespace test {

// Writes what the display shows of `window`, frame and all, to the PNG file `path`. The
// window is in front of all others then, and drawn. Returns false when that fails.
bool SavePicture(HWND window, const std::filesystem::path& path);

}  // namespace test
