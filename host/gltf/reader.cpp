#include "host/gltf/reader.h"

#include "host/gltf/file/container.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/joints/read_joints.h"
#include "host/gltf/kept/kept_scene.h"

namespace host::gltf {

namespace {

// Of a file that keeps no scene. What has no skeleton either is refused as one without a scene.
SkinReading ReadSkins(std::string_view bytes, const FileParts& file, const SkinOptions& options,
                      Scene& scene) {
  const FileParts seen = TakeApart(bytes, MembersOfJoints());
  if (!HasJoints(seen)) RestoreScene(file, scene);
  return ReadJoints(seen, options, scene);
}

// Calls `read`; returns why it gives up, or an empty text.
template <typename Read>
std::string Refused(const Read& read) {
  try {
    read();
    return "";
  } catch (const Refusal& refusal) {
    return refusal.what();
  }
}

}  // namespace

std::string ReadScene(std::string_view bytes, Scene& scene) {
  return Refused([&] { RestoreScene(TakeApart(bytes, MembersOfScenes()), scene); });
}

std::string ReadSceneOrSkins(std::string_view bytes, const SkinOptions& options, Scene& scene,
                             SkinReading& reading) {
  return Refused([&] {
    const FileParts file = TakeApart(bytes, MembersOfScenes());
    if (KeepsScene(file)) return RestoreScene(file, scene);
    reading = ReadSkins(bytes, file, options, scene);
  });
}

}  // namespace host::gltf
