#include "platform/module.h"

#include "platform/portable/module_resources.h"

// The ends of the resources, provided under these names by the assembly file that embeds them.
// NOLINTBEGIN(readability-identifier-naming)
extern "C" const std::byte orvane_resources_begin[];
extern "C" const std::byte orvane_resources_end[];
// NOLINTEND(readability-identifier-naming)

namespace platform {

HINSTANCE ModuleHandle() {
  static HINSTANCE__ module{std::span(orvane_resources_begin, orvane_resources_end)};
  return &module;
}

}  // namespace platform
