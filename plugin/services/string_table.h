#pragma once

#include <array>

#include "platform/handles.h"

// The module's texts by number.
namespace orvane {

class StringTable {
 public:
  // The text of string `id` of `module`, cut to 255 characters; null when `module` is null, has
  // no such string, or it cannot be read.
  // Intended: it lies in the one buffer of this object, where the host finds it without owning it;
  // the next call overwrites it, so callers use or copy it before.
  const char* GetString(HINSTANCE module, unsigned int id) noexcept;

 private:
  std::array<char, 256> buffer_{};
};

}  // namespace orvane
