#include "host/gltf/container.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <sstream>
#include <utility>

#include "host/gltf/refusal.h"

namespace host::gltf {

namespace {

// Both the binary container and the library count bytes with 32 bits.
void RequireRoom(std::size_t bytes) {
  if (bytes > std::numeric_limits<std::uint32_t>::max()) {
    throw Refusal("The scene cannot be saved: glTF holds no more than 4 GiB.");
  }
}

}  // namespace

std::string PackedModel(const tinygltf::Model& model, Container container) {
  if (!model.buffers.empty()) RequireRoom(model.buffers.front().data.size());
  const bool binary = container == Container::kBinary;
  const bool readable = !binary;
  std::ostringstream stream;
  tinygltf::TinyGLTF library;
  library.WriteGltfSceneToStream(&model, stream, readable, binary);
  std::string bytes = std::move(stream).str();
  if (binary) RequireRoom(bytes.size());
  return bytes;
}

}  // namespace host::gltf
