#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "host/gltf/file/binary_data.h"
#include "host/gltf/file/json_list.h"
#include "host/gltf/file/output.h"

// A file that is being made, and its JSON. Both halves add to it; container.h makes bytes of it.
// The writer owns it; what it is made of outlives it.

namespace host::gltf {

// The parts of a glTF file that is being made.
struct Document {
  std::string scene_name;
  std::string animation_name;
  nlohmann::json recording;  // extras of the scene and of its animation: an object, or nothing
  std::vector<int> roots;    // nodes of the scene that have no parent
  JsonList nodes;
  JsonList meshes;
  JsonList materials;
  JsonList skins;
  JsonList samplers;  // of the one animation, as are the channels
  JsonList channels;
  BinaryData data;
  nlohmann::json extensions;    // an object, by name
  nlohmann::json asset_extras;  // what is to be known of the file as a whole, by name
};

// Appends `document` as JSON. `append_uri` appends the place where its data is, text that needs no
// escapes and may be long; it is null when the data stands behind the JSON.
void AppendText(const Document& document, const std::function<void(Output&)>& append_uri,
                Output& output);

}  // namespace host::gltf
