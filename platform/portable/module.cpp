#include "platform/module.h"

#include "platform/portable/module_resources.h"

// The resources, provided under these names by the file that is made of them.
// NOLINTBEGIN(readability-identifier-naming)
extern "C" const std::byte orvane_resources[];
extern "C" const std::size_t orvane_resources_size;
// NOLINTEND(readability-identifier-naming)

namespace platform {

HINSTANCE ModuleHandle() {
  static HINSTANCE__ module{std::span(orvane_resources, orvane_resources_size)};
  return &module;
}

}  // namespace platform
