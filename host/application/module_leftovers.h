#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/export.h"

// What a plug-in module takes from the host and has to give back before it is unloaded.

namespace host {

class Application;
class Settings;

// What a module left behind; empty and zero when it left nothing.
struct SKELDER_API ModuleLeftovers {
  std::vector<std::string> open_keys;  // full paths of registry keys that are open, sorted
  std::size_t live_allocations = 0;    // allocations on the host's heap that were not freed
  std::size_t loose_instances = 0;     // objects and controllers neither given away nor deleted
  std::size_t callbacks = 0;           // callbacks that the application would still call

  [[nodiscard]] bool IsClean() const;
};

// What is taken from the host at one moment, by whomever.
class Holdings {
 public:
  // Counts now. The open keys of `settings` count; without them (null) none do.
  Holdings(Application& application, const Settings* settings);

  // What is held here and was not held `before`.
  ModuleLeftovers Since(const Holdings& before) const;

 private:
  ModuleLeftovers held_;
};

}  // namespace host
