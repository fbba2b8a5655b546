#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace host::gltf {

// A glTF file taken apart.
struct FileParts {
  nlohmann::json document;
  std::string binary;  // the bytes of its first buffer; none when it has no buffer
};

// Takes a .glb or .gltf file with embedded data apart, in memory of a few times its size. Throws a
// Refusal when it is neither, cut short, or nested more than 100 deep.
FileParts TakeApart(std::string_view bytes);

}  // namespace host::gltf
