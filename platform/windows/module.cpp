#include "platform/module.h"

#include <windows.h>

namespace {

HINSTANCE attached_module = nullptr;

}  // namespace

// Called by the system when it loads the module, once what is static has been constructed.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    attached_module = module;
    DisableThreadLibraryCalls(module);
  }
  return TRUE;
}

namespace platform {

HINSTANCE ModuleHandle() { return attached_module; }

}  // namespace platform
