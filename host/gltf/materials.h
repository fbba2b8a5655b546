#pragma once

#include <tiny_gltf.h>

#include <map>

#include "sdk/core/types.h"

namespace host::gltf {

// The materials of a glTF file: one for each wire colour, dull and in that colour.
class Materials {
 public:
  // `model` outlives this.
  explicit Materials(tinygltf::Model& model) : model_(model) {}

  // The index of the material in `color`.
  int Of(WireColor color);

 private:
  tinygltf::Model& model_;
  std::map<WireColor, int> indices_;
};

}  // namespace host::gltf
