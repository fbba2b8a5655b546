#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <string_view>

#include "host/gltf/file/document.h"

// The two forms of a glTF file. The binary container (.glb) has a header of the magic word, the
// version and the size of the file; then chunks, each of its size, its type and its bytes, first
// the JSON and then the data. Sizes count bytes, all numbers have 32 bits. The other form (.gltf)
// is the JSON with the data embedded in it as base64.

namespace host::gltf {

// Throws a Refusal when `bytes` are more than `most`, which a file may have.
void RequireRoom(std::uint64_t bytes, std::uint64_t most);

// Write the file with `document` in it, in either form. Throw a Refusal, before anything is
// written, when it, or the data embedded in text, takes more than `most` bytes.
// REQUIRES: `most` is no more than 32 bits count.
void WriteBinary(const Document& document, std::uint64_t most, FileSink& file);
void WriteText(const Document& document, std::uint64_t most, FileSink& file);

// A glTF file taken apart: what a reader looks at.
struct FileParts {
  // Of the document the members that were asked for; the others may be large and are left out.
  nlohmann::json document;

  // The bytes of its first buffer; none when it has no buffer. Valid as long as the file's.
  std::string_view Binary() const { return embedded.empty() ? chunk : embedded; }

  std::string_view chunk;  // of a binary file
  std::string embedded;    // what a file of text has in base64
};

// Takes a .glb or .gltf file with embedded data apart, in memory of a few times its size. Of its
// document those of `members` are kept. Throws a Refusal when it is neither, cut short, nested more
// than 100 deep, or has its data elsewhere. `bytes` must outlive the parts.
FileParts TakeApart(std::string_view bytes, const std::set<std::string>& members);

}  // namespace host::gltf
