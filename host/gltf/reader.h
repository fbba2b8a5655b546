#pragma once

#include <string>
#include <string_view>

#include "host/gltf/joints/skin_reading.h"
#include "host/scene/scene.h"
#include "platform/export.h"

// Scenes back from glTF files. What the files of host/gltf/writer.h keep for ourselves comes back
// exactly, with everything that the scene was made of. Files of other makers, and ours when another
// program has saved them, hold no such part: of these come skeletons, made of what viewers see.
// Files are the caller's business: everything happens in memory.

namespace host::gltf {

// Builds the scene in `bytes`, a whole .glb or .gltf file, in `scene`, which is new. Written again
// under the same name, it gives the same bytes. Returns why that cannot be done, as a sentence for
// the user, or an empty text when it was done; a scene that was not read to its end is of no use.
//
// Takes any bytes, in time and memory in proportion to them. Nodes get their handles anew, in the
// order of the file.
[[nodiscard]] SKELDER_API std::string ReadScene(std::string_view bytes, Scene& scene);

// Builds the scene in `bytes` as ReadScene does when the file keeps one, and otherwise its
// skeletons. `reading` is then told of. Returns as ReadScene does, and takes any bytes as it does.
//
// The joints of all skins become bones, below the next joint above them or under the scene's root.
// What stands between and above takes part in where they are, and is not there else: neither are
// meshes. Every bone is keyed in every frame of the range, and one frame before it in the pose that
// the skins are bound in, at which the scene stands. Frames are numbered from 1, or as our own
// files tell; the first is at the earliest key. Refused is what makes a joint larger or smaller
// than the others or than before, uneven, sheared or mirrored.
//
// A bone's long axis, X in the host, is that axis of the joints which most of the way to the joints
// below lies along. It is as long as the farthest of those below it is away along that; without any
// its length is 0. A name has _ in place of blanks, and a number when another bone has it already.
// A skeleton that is the only one is selected.
[[nodiscard]] SKELDER_API std::string ReadSceneOrSkins(std::string_view bytes,
                                                       const SkinOptions& options, Scene& scene,
                                                       SkinReading& reading);

}  // namespace host::gltf
