#include "host/gltf/document.h"

namespace host::gltf {

std::size_t Document::Size() const {
  std::size_t size = data.Bytes().size() + data.Accessors().Elements().size();
  for (const JsonList* list : {&nodes, &meshes, &materials, &skins, &samplers, &channels}) {
    size += list->Elements().size();
  }
  return size;
}

}  // namespace host::gltf
