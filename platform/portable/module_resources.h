#pragma once

#include <cstddef>
#include <span>

#include "platform/handles.h"

// What a module handle points at off Windows: the compiled resources that were embedded in the
// module. A module owns its own and keeps them as long as it is loaded.

struct HINSTANCE__ {
  std::span<const std::byte> resource_file;  // to be read with platform/portable/resource_file.h
};

namespace platform {

// The resource file of `module`; empty when `module` is null.
[[nodiscard]] inline std::span<const std::byte> ResourceFileOf(HINSTANCE module) {
  return module == nullptr ? std::span<const std::byte>() : module->resource_file;
}

}  // namespace platform
