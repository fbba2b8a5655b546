#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "host/gltf/file/binary_data.h"
#include "host/gltf/file/json_list.h"

// A file that is being made, and its JSON. Both halves add to it; container.h makes bytes of it.
// The writer owns it.

namespace host::gltf {

// The parts of a glTF file that is being made.
struct Document {
  // Of all lists and the data, in bytes.
  std::size_t Size() const;

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

// Appends `document` as JSON to `text`. `uri` tells where its data is; it is empty when that stands
// behind the JSON. Lists are freed as they are appended, because all together are large.
void AppendText(Document& document, const std::string& uri, std::string& text);

}  // namespace host::gltf
