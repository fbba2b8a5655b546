#pragma once

#include <cstdint>
#include <string_view>

// The binary container: a header of the magic word, the version and the size of the file; then
// chunks, each of its size, its type and its bytes, first the JSON and then the data. Sizes count
// bytes, all numbers have 32 bits.

namespace host::gltf {

inline constexpr std::string_view kGlbMagic = "glTF";
inline constexpr std::uint32_t kGlbVersion = 2;
inline constexpr std::uint32_t kJsonChunk = 0x4E4F534A;
inline constexpr std::uint32_t kBinaryChunk = 0x004E4942;

}  // namespace host::gltf
