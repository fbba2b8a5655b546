#include "host/gltf/reader.h"

#include "host/gltf/file/container.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/kept/kept_scene.h"

namespace host::gltf {

std::string ReadScene(std::string_view bytes, Scene& scene) {
  try {
    RestoreScene(TakeApart(bytes), scene);
    return "";
  } catch (const Refusal& refusal) {
    return refusal.what();
  }
}

}  // namespace host::gltf
