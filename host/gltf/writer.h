#pragma once

#include <cstdint>
#include <limits>
#include <string>

#include "host/gltf/file/file_sink.h"
#include "host/scene/scene.h"
#include "platform/export.h"

// A scene as glTF 2.0, for any viewer: in metres, Y up, with the tree of nodes and their names,
// shapes for bones, spheres and point helpers in their wire colours, and the keys as one animation.
// Files are the caller's business: everything happens in memory.
//
// Bones are slim octahedra, skinned so that importers make an armature of them: one skin and one
// mesh for each tree under the scene's root, of at most 60,000 bones each. The meshes hang beside
// the trees, as the format wants it. The nodes stand as they do at the scene's current time, which
// is also the pose that the bones are bound in.
//
// The animation has the keys as they are, joined linearly, in seconds from the earliest key of the
// scene: those of the recording, if its rate is known, and otherwise the host's. Where a node was
// not measured it is hidden, held or left at the origin (host/scene/measured.h). Of keys that fall
// on one second in single precision only the first is kept. What is between keys of a smooth or an
// Euler controller is not sampled.
//
// Names that are not UTF-8 have the bytes in question replaced.
//
// Beside all that, the file keeps the scene exactly as it is, for host/gltf/reader.h.

namespace host::gltf {

enum class Container {
  kBinary,  // .glb
  kText,    // .gltf with the data embedded in it
};

struct WriteOptions {
  Container container = Container::kBinary;

  // The name of the scene and of its animation; may be empty.
  std::string name;

  // Whether the file holds nothing but what viewers see: no scene can be read back from it.
  bool plain = false;

  // Refused is what takes more bytes; the binary container counts no more.
  std::uint32_t most_bytes = std::numeric_limits<std::uint32_t>::max();
};

struct WrittenScene {
  // The whole file; empty when the scene was refused.
  std::string bytes;

  // Why the scene cannot be written, as a sentence for the user; empty when it was. Refused is what
  // glTF cannot hold: numbers that are not finite, and more than 4 GiB, which is nearly always seen
  // before any work is done.
  std::string refusal;
};

// The same scene gives the same bytes. Takes time in proportion to nodes and keys.
[[nodiscard]] SKELDER_API WrittenScene WriteScene(const Scene& scene, const WriteOptions& options);

// The same into `file`, piece by piece, in memory of some hundreds of bytes for a node and two
// dozen for a key. Returns why the scene cannot be written, and gives `file` nothing then; an empty
// text otherwise.
[[nodiscard]] SKELDER_API std::string WriteScene(const Scene& scene, const WriteOptions& options,
                                                 FileSink& file);

}  // namespace host::gltf
