#include "host/gltf/json_list.h"

namespace host::gltf {

int JsonList::Add(const nlohmann::json& element) {
  if (!IsEmpty()) elements_ += ",\n";
  elements_ += element.dump();
  return size_++;
}

}  // namespace host::gltf
