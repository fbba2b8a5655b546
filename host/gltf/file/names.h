#pragma once

#include <string>
#include <string_view>

// Texts of the host, which are any bytes, as texts of JSON, which are UTF-8.

namespace host::gltf {

// `bytes` as viewers can read it: every byte that is no part of a UTF-8 character becomes U+FFFD.
// Valid text comes back as it is.
std::string ViewerName(std::string_view bytes);

}  // namespace host::gltf
