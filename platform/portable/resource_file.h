#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/dialog_template.h"

// Looking up resources in the bytes of a compiled resource file (.res), as the resource compiler
// writes it. No declared size is believed: in a damaged file what lies beyond the damage is absent.
// Only numbered resources are found, and the first one of a number whatever its language.

namespace platform {

// The system's numbers for the kinds of resources.
enum class ResourceType : std::uint16_t {
  kBitmap = 2,
  kDialog = 5,
  kString = 6,
  kVersion = 16,
  kManifest = 24
};

// The data of resource `id`, a view into `file`; empty when there is none.
[[nodiscard]] std::span<const std::byte> FindResource(std::span<const std::byte> file,
                                                      ResourceType type, unsigned int id);

// Entry `id` of the string table in UTF-8; empty when there is none.
[[nodiscard]] std::string FindString(std::span<const std::byte> file, unsigned int id);

// Dialog `id`; nothing when it is absent or damaged.
[[nodiscard]] std::optional<DialogTemplate> FindDialog(std::span<const std::byte> file,
                                                       unsigned int id);

}  // namespace platform
