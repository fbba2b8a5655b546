#pragma once

#include <tiny_gltf.h>

#include <string>

#include "host/gltf/writer.h"

namespace host::gltf {

// The bytes of the file with `model` in it. Throws a Refusal when they are more than it can hold.
std::string PackedModel(const tinygltf::Model& model, Container container);

}  // namespace host::gltf
