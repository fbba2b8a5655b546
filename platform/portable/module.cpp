#include "platform/module.h"

#include "platform/portable/module_resources.h"

// The ends of the resources, provided by the assembly file that embeds them.
extern "C" const std::byte orvane_resources_begin[];  // NOLINT(modernize-avoid-c-arrays)
extern "C" const std::byte orvane_resources_end[];    // NOLINT(modernize-avoid-c-arrays)

namespace platform {

HINSTANCE ModuleHandle() {
  static HINSTANCE__ module{std::span(orvane_resources_begin, orvane_resources_end)};
  return &module;
}

}  // namespace platform
