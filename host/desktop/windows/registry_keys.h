#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "host/desktop/settings.h"

// The system's registry, looked at from outside of a module. Paths are UTF-8.

namespace host {

// The value `name` of the key `path` beneath `root`; nothing when there is none. A text is in the
// system's narrow encoding, as modules read and write it, without a NUL behind it.
[[nodiscard]] std::optional<RegistryValue> ReadRegistryValue(HKEY root, const std::string& path,
                                                             const std::string& name);

// Whether the key `path` exists beneath `root`.
[[nodiscard]] bool HasRegistryKey(HKEY root, const std::string& path);

// The paths of the keys beneath `root`, an open key, that this process has open, sorted; one for
// each time it was opened. Those that the system's own dialogs leave open are not among them.
std::vector<std::string> OpenKeysBelow(HKEY root);

}  // namespace host
