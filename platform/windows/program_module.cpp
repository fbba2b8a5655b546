// In place of module.cpp where the plug-in's parts are linked into a program: the resources are the
// program's then.

#include <windows.h>

#include "platform/module.h"

namespace platform {

HINSTANCE ModuleHandle() { return GetModuleHandleA(nullptr); }

}  // namespace platform
