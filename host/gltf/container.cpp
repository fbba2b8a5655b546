#include "host/gltf/container.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

#include "host/gltf/base64.h"
#include "host/gltf/document_text.h"
#include "host/gltf/glb_format.h"
#include "host/gltf/refusal.h"

namespace host::gltf {

namespace {

constexpr std::size_t kHeaderSize = 12;
constexpr std::size_t kChunkHeaderSize = 8;
constexpr std::size_t kChunkAlignment = 4;

// The binary container counts bytes with 32 bits.
void RequireRoom(std::size_t bytes) {
  if (bytes > std::numeric_limits<std::uint32_t>::max()) {
    throw Refusal("The scene cannot be saved: glTF holds no more than 4 GiB.");
  }
}

void SetWord(std::size_t number, std::size_t offset, std::string& bytes) {
  const auto word = static_cast<std::uint32_t>(number);
  std::memcpy(&bytes[offset], &word, sizeof word);
}

// Fills the chunk whose header is at `start` up to a multiple of four bytes, and its header.
void EndChunk(std::size_t start, std::uint32_t type, char filler, std::string& bytes) {
  while (bytes.size() % kChunkAlignment != 0) bytes += filler;
  SetWord(bytes.size() - start - kChunkHeaderSize, start, bytes);
  SetWord(type, start + sizeof type, bytes);
}

std::string PackedInBinary(Document document) {
  constexpr std::size_t kRoomForTheRest = 1 << 16;
  std::string bytes;
  bytes.reserve(document.Size() + kRoomForTheRest);
  bytes.resize(kHeaderSize + kChunkHeaderSize);
  AppendText(document, "", bytes);
  EndChunk(kHeaderSize, kJsonChunk, ' ', bytes);

  const std::size_t data_start = bytes.size();
  bytes.resize(data_start + kChunkHeaderSize);
  bytes += document.data.Bytes();
  EndChunk(data_start, kBinaryChunk, '\0', bytes);

  RequireRoom(bytes.size());
  bytes.replace(0, kGlbMagic.size(), kGlbMagic);
  SetWord(kGlbVersion, 4, bytes);
  SetWord(bytes.size(), 8, bytes);
  return bytes;
}

std::string PackedAsText(Document document) {
  std::string text;
  AppendText(document, std::string(kDataPrefix) + EncodedBase64(document.data.Bytes()), text);
  return text;
}

}  // namespace

std::string PackedDocument(Document document, Container container) {
  RequireRoom(document.data.Bytes().size());
  return container == Container::kBinary ? PackedInBinary(std::move(document))
                                         : PackedAsText(std::move(document));
}

}  // namespace host::gltf
