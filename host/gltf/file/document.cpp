#include "host/gltf/file/document.h"

#include <string_view>

namespace host::gltf {

namespace {

using nlohmann::json;

constexpr char kGenerator[] = "OrvaneFileIO";

// Appends a JSON object to a file, member by member, each on lines of its own.
class ObjectOutput {
 public:
  explicit ObjectOutput(Output& output) : output_(output) { output_.Append("{"); }

  // The output, to append the value of the member `name` to.
  Output& Member(std::string_view name) {
    output_.Append(separator_);
    output_.Append("\"");
    output_.Append(name);
    output_.Append("\":");
    separator_ = ",\n";
    return output_;
  }

  void Add(std::string_view name, std::string_view value) { Member(name).Append(value); }

  // Adds no empty list: the format forbids them.
  void AddList(std::string_view name, const JsonList& list) {
    if (list.IsEmpty()) return;
    Add(name, "[\n");
    output_.Append(list.Elements());
    output_.Append("]");
  }

  void End() { output_.Append("}"); }

 private:
  Output& output_;
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

void AddAnimation(const Document& document, ObjectOutput& file) {
  if (document.channels.IsEmpty()) return;
  Output& output = file.Member("animations");
  output.Append("[");
  ObjectOutput animation(output);
  if (!document.animation_name.empty()) animation.Add("name", json(document.animation_name).dump());
  if (!document.recording.empty()) animation.Add("extras", document.recording.dump());
  animation.AddList("samplers", document.samplers);
  animation.AddList("channels", document.channels);
  animation.End();
  output.Append("]");
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

// The one buffer.
void AddBuffer(const BinaryData& data, const std::function<void(Output&)>& append_uri,
               ObjectOutput& file) {
  if (data.Size() == 0) return;
  Output& output = file.Member("buffers");
  output.Append("[{\"byteLength\":" + std::to_string(data.Size()));
  if (append_uri != nullptr) {
    output.Append(",\"uri\":\"");
    append_uri(output);
    output.Append("\"");
  }
  output.Append("}]");
}

}  // namespace

void AppendText(const Document& document, const std::function<void(Output&)>& append_uri,
                Output& output) {
  ObjectOutput file(output);
  file.Add("asset", AssetRecord(document).dump());
  if (!document.extensions.empty()) {
    file.Add("extensionsUsed", NamesIn(document.extensions).dump());
    file.Add("extensions", document.extensions.dump());
  }
  file.Add("scene", "0");
  file.Add("scenes", json::array({SceneRecord(document)}).dump());
  file.AddList("nodes", document.nodes);
  file.AddList("meshes", document.meshes);
  file.AddList("materials", document.materials);
  file.AddList("skins", document.skins);
  AddAnimation(document, file);
  file.AddList("accessors", document.data.Accessors());
  file.AddList("bufferViews", Views(document.data));
  AddBuffer(document.data, append_uri, file);
  file.End();
}

}  // namespace host::gltf
