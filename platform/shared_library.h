#pragma once

#include <memory>
#include <string>

// Shared libraries loaded while the program runs: how the host gets at its plug-in modules. What a
// library's functions mean is its user's business.

namespace platform {

// A loaded library. Unloaded when destroyed: its statics are destroyed then, and nothing that came
// from it may be used after.
class SharedLibrary {
 public:
  // Loads the library in the file `path` (relative to the current folder; no search path is tried)
  // with all its references resolved at once and its names kept to itself; its statics are
  // constructed before this returns.
  // Returns null when that fails, with the system's reason in `failure`.
  [[nodiscard]] static std::unique_ptr<SharedLibrary> Open(const std::string& path,
                                                           std::string& failure);

  virtual ~SharedLibrary() = default;

  // The address of the exported function `name`, or null when the library exports no such name.
  [[nodiscard]] virtual void* Find(const char* name) = 0;
};

}  // namespace platform
