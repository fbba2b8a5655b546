#pragma once

#include <cstddef>
#include <cstdint>

// The current user's registry: keys that hold named values of a type and some bytes.
// On Windows these are the system's own calls; elsewhere the desktop in use provides the store.

namespace platform {

// The kinds of value in use; the numbers are the system's own.
enum class RegistryType : std::uint32_t {
  kString = 1,
  kBinary = 3,
  kDoubleWord = 4,
  kQuadWord = 11
};

// An open key. Opaque: on Windows it stands for the system's handle.
struct RegistryKey;

// Opens the key `path` (components separated by backslashes) beneath `parent`, or beneath the root
// of the current user when `parent` is null, for reading and writing; creates what is missing.
// Returns the open key, which the caller hands to CloseRegistryKey; null on failure.
// REQUIRES: `path` is not null.
[[nodiscard]] RegistryKey* CreateRegistryKey(RegistryKey* parent, const char* path);

// Closes a key that CreateRegistryKey returned. Null is allowed and does nothing.
void CloseRegistryKey(RegistryKey* key);

// Copies the bytes of the value `name` of `key` to `data`; the value's type is not looked at.
// Returns true and stores the number of bytes copied in `size`. Returns false, changing neither
// `data` nor `size`, when there is no such value or it holds more than `size` bytes.
// REQUIRES: `data` has room for `size` bytes.
[[nodiscard]] bool QueryRegistryValue(RegistryKey* key, const char* name, void* data,
                                      std::size_t& size);

// Stores `size` bytes as the value `name` of `key`, replacing what was there.
// Returns false when the registry refuses.
// REQUIRES: `data` holds `size` bytes.
[[nodiscard]] bool SetRegistryValue(RegistryKey* key, const char* name, RegistryType type,
                                    const void* data, std::size_t size);

}  // namespace platform
