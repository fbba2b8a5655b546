#pragma once

#include <string>
#include <string_view>

#include "host/scene/scene.h"
#include "platform/export.h"

// Scenes back from the files that host/gltf/writer.h makes. What is read is the part of the file
// that is ours, with everything that the scene was made of; what viewers show is not looked at. A
// file of other makers, or one that another program has saved, holds no such part. Files are the
// caller's business: everything happens in memory.

namespace host::gltf {

// Builds the scene in `bytes`, a whole .glb or .gltf file, in `scene`, which is new. Written again
// under the same name, it gives the same bytes. Returns why that cannot be done, as a sentence for
// the user, or an empty text when it was done; a scene that was not read to its end is of no use.
//
// Takes any bytes, in time and memory in proportion to them. Nodes get their handles anew, in the
// order of the file.
[[nodiscard]] SKELDER_API std::string ReadScene(std::string_view bytes, Scene& scene);

}  // namespace host::gltf
