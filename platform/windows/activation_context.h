#pragma once

#include <windows.h>

#include <cstdint>

// Which version of the system's controls a window gets is decided by the manifest of whoever is
// active when the window is created. As long as this object lives, on the thread that made it, that
// is the manifest among a module's own resources and not that of the program that loaded it.

namespace platform {

class ActivationContext {
 public:
  // When anything fails, windows look as the program's manifest says.
  explicit ActivationContext(HINSTANCE module);
  ActivationContext(const ActivationContext&) = delete;
  ActivationContext& operator=(const ActivationContext&) = delete;
  ~ActivationContext();

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

}  // namespace platform
