#pragma once

#include <set>
#include <string>

#include "host/gltf/file/container.h"
#include "host/gltf/joints/skin_reading.h"
#include "host/scene/scene.h"

// The skeletons of a file that keeps no scene of ours.

namespace host::gltf {

// The members of a document that ReadJoints looks at.
std::set<std::string> MembersOfJoints();

// Whether a skin of `file` has a joint. Throws a Refusal when they are damaged.
[[nodiscard]] bool HasJoints(const FileParts& file);

// Makes bones of the joints of `file` in `scene`, which is new, as host/gltf/reader.h tells. Throws
// a Refusal when that cannot be done; `scene` then holds a part of it.
[[nodiscard]] SkinReading ReadJoints(const FileParts& file, const SkinOptions& options,
                                     Scene& scene);

}  // namespace host::gltf
