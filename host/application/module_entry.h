#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/shared_library.h"
#include "sdk/core/library.h"

// The four entry points of a plug-in module, and which modules the host refuses.

namespace host {

// All the host knows of a module. Valid as long as its library is loaded.
struct ModuleEntry {
  LibDescriptionFunction description = nullptr;
  LibNumberClassesFunction number_of_classes = nullptr;
  LibClassDescFunction class_descriptor = nullptr;
  LibVersionFunction version = nullptr;
};

// Finds the entry points of `library`, which was loaded from the file `path`; of these only the
// version is called.
// Returns nothing, with the reason in `refusal`, when one is missing or the module was made for
// another interface than `interface_number`.
[[nodiscard]] std::optional<ModuleEntry> FindModuleEntry(platform::SharedLibrary& library,
                                                         const std::string& path,
                                                         std::uint32_t interface_number,
                                                         std::string& refusal);

}  // namespace host
