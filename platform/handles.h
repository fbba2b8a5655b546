#pragma once

#include <cstdint>

// Windows and modules as opaque handles. The tags are the ones that the Windows headers use for
// strictly typed handles, so that a handle declared here and one declared there are the same type
// and the Windows bodies need no casts. No system header is needed to name them.
//
// Off Windows an HWND is a token of the desktop that created the window, and an HINSTANCE points at
// the module's embedded resources (platform/portable/module_resources.h).

struct HWND__;       // NOLINT(bugprone-reserved-identifier): the system's own tag
struct HINSTANCE__;  // NOLINT(bugprone-reserved-identifier): the system's own tag

using HWND = HWND__*;
using HINSTANCE = HINSTANCE__*;

namespace platform {

// A dialog procedure as it is handed to the host together with a 64-bit parameter: on 64-bit
// Windows this is exactly the system's own dialog procedure type. The plug-in never writes one: the
// platform provides the one that turns messages into calls on a DialogHandler.
using DialogProcedure = std::intptr_t (*)(HWND window, unsigned int message, std::uintptr_t word,
                                          std::intptr_t parameter);

}  // namespace platform
