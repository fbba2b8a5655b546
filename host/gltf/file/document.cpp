#include "host/gltf/file/document.h"

#include <string_view>
#include <utility>

namespace host::gltf {

namespace {

using nlohmann::json;

constexpr char kGenerator[] = "OrvaneFileIO";

// Appends a JSON object to a text, member by member.
class ObjectText {
 public:
  explicit ObjectText(std::string& text) : text_(text) { text_ += '{'; }

  void Add(std::string_view name, std::string_view value) {
    text_ += separator_;
    text_ += '"';
    text_ += name;
    text_ += "\":";
    text_ += value;
    separator_ = ",\n";
  }

  // Adds no empty list: the format forbids them.
  void AddList(std::string_view name, const JsonList& list) {
    if (list.IsEmpty()) return;
    Add(name, "[\n");
    text_ += list.Elements();
    text_ += ']';
  }

  // Empties the list as well.
  void MoveList(std::string_view name, JsonList& list) { AddList(name, std::exchange(list, {})); }

  void End() { text_ += '}'; }

 private:
  std::string& text_;
  const char* separator_ = "\n";
};

json NamesIn(const json& object) {
  json names = json::array();
  for (const auto& member : object.items()) names.push_back(member.key());
  return names;
}

json AssetRecord(const Document& document) {
  json asset = {{"generator", kGenerator}, {"version", "2.0"}};
  if (!document.asset_extras.empty()) asset["extras"] = document.asset_extras;
  return asset;
}

json SceneRecord(const Document& document) {
  json scene = {{"name", document.scene_name}};
  if (!document.roots.empty()) scene["nodes"] = document.roots;
  if (!document.recording.empty()) scene["extras"] = document.recording;
  return scene;
}

void AddAnimation(Document& document, ObjectText& file, std::string& text) {
  if (document.channels.IsEmpty()) return;
  file.Add("animations", "[");
  ObjectText animation(text);
  if (!document.animation_name.empty()) animation.Add("name", json(document.animation_name).dump());
  if (!document.recording.empty()) animation.Add("extras", document.recording.dump());
  animation.MoveList("samplers", document.samplers);
  animation.MoveList("channels", document.channels);
  animation.End();
  text += ']';
}

JsonList Views(const BinaryData& data) {
  JsonList views;
  for (const BufferView& view : data.Views()) {
    json record = {{"buffer", 0}, {"byteLength", view.size}};
    if (view.offset != 0) record["byteOffset"] = view.offset;
    if (view.target != 0) record["target"] = view.target;
    views.Add(record);
  }
  return views;
}

// The one buffer. A place is text that needs no escapes and may be long.
std::string BufferText(const BinaryData& data, const std::string& uri) {
  const std::string size = "{\"byteLength\":" + std::to_string(data.Bytes().size());
  return size + (uri.empty() ? "}" : ",\"uri\":\"" + uri + "\"}");
}

}  // namespace

std::size_t Document::Size() const {
  std::size_t size = data.Bytes().size() + data.Accessors().Elements().size();
  for (const JsonList* list : {&nodes, &meshes, &materials, &skins, &samplers, &channels}) {
    size += list->Elements().size();
  }
  return size;
}

void AppendText(Document& document, const std::string& uri, std::string& text) {
  BinaryData& data = document.data;
  ObjectText file(text);
  file.Add("asset", AssetRecord(document).dump());
  if (!document.extensions.empty()) {
    file.Add("extensionsUsed", NamesIn(document.extensions).dump());
    file.Add("extensions", document.extensions.dump());
  }
  file.Add("scene", "0");
  file.Add("scenes", json::array({SceneRecord(document)}).dump());
  file.MoveList("nodes", document.nodes);
  file.MoveList("meshes", document.meshes);
  file.MoveList("materials", document.materials);
  file.MoveList("skins", document.skins);
  AddAnimation(document, file, text);
  file.MoveList("accessors", data.Accessors());
  file.AddList("bufferViews", Views(data));
  if (!data.Bytes().empty()) file.Add("buffers", "[" + BufferText(data, uri) + "]");
  file.End();
}

}  // namespace host::gltf
