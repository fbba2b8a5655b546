#pragma once

#include <cassert>
#include <map>

#include "host/gltf/file/json_list.h"
#include "sdk/core/types.h"

// Wire colors as materials. One writing owns them, and the document their list.

namespace host::gltf {

// The materials of a glTF file: one for each wire colour, dull and in that colour.
class Materials {
 public:
  // `list`, the file's materials, outlives this.
  // REQUIRES: it is empty.
  explicit Materials(JsonList& list) : list_(list) { assert(list.IsEmpty()); }

  // The index of the material in `color`.
  int Of(WireColor color);

 private:
  JsonList& list_;
  std::map<WireColor, int> indices_;
};

}  // namespace host::gltf
