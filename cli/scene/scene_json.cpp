#include <array>
#include <unordered_map>

#include "cli/common/json_writer.h"
#include "cli/scene/scene_report.h"

namespace cli {
namespace {

constexpr int kVersion = 1;

using Layout = JsonWriter::Layout;

// Writes a scene, part by part.
class SceneJson {
 public:
  explicit SceneJson(std::ostream& out) : json_(out) {}

  void Write(const std::string& file, const host::Scene& scene);

 private:
  void WriteTime(const host::AnimationState& animation);
  void WriteRecording(const std::optional<host::Recording>& recording);
  void WriteMeasurement(const std::optional<host::Measured>& measured);
  void WriteIntegers(std::int64_t first, std::int64_t second);
  void WriteMode(const char* key, const host::SuspendableMode& mode);
  void WriteSelection(const host::Scene& scene, const std::vector<SceneTreeEntry>& tree);
  void WriteNode(const SceneTreeEntry& entry, std::size_t index, TimeValue time);
  void WriteObject(const host::Node& node);
  void WriteProperties(const host::Node& node);
  void WriteBoneFlags(const host::Node& node);

  // `kind` tells how the keys are joined.
  template <typename KeyedController>
  void WriteController(const char* key, const char* kind, KeyedController& controller,
                       TimeValue time);

  void WriteClass(ClassId class_id);
  void WriteInteger(const char* key, std::int64_t value);

  void WriteComponents(const Point3& point) {
    for (const float number : {point.x, point.y, point.z}) json_.Number(number);
  }
  void WriteComponents(const Quat& rotation) {
    for (const float number : {rotation.x, rotation.y, rotation.z, rotation.w}) {
      json_.Number(number);
    }
  }

  JsonWriter json_;
};

void SceneJson::Write(const std::string& file, const host::Scene& scene) {
  const std::vector<SceneTreeEntry> tree = ListScene(scene);
  json_.BeginObject();
  WriteInteger("version", kVersion);
  json_.Key("file");
  json_.String(file);
  json_.Key("millimeters_per_unit");
  json_.Number(scene.MillimetersPerUnit());
  WriteTime(scene.Animation());
  WriteRecording(scene.Recording());
  WriteSelection(scene, tree);
  json_.Key("nodes");
  json_.BeginArray(Layout::kLines);
  for (std::size_t i = 0; i < tree.size(); ++i) WriteNode(tree[i], i, scene.Animation().Time());
  json_.EndArray();
  json_.EndObject();
}

void SceneJson::WriteTime(const host::AnimationState& animation) {
  WriteInteger("frame_rate", animation.FrameRate());
  WriteInteger("ticks_per_frame", animation.TicksPerFrame());
  json_.Key("range");
  WriteIntegers(animation.Range().Start(), animation.Range().End());
  WriteInteger("time", animation.Time());
  WriteMode("animate_mode", animation.AnimateMode());
  WriteMode("set_key_mode", animation.SetKeyMode());
}

void SceneJson::WriteIntegers(std::int64_t first, std::int64_t second) {
  json_.BeginArray(Layout::kOneLine);
  json_.Integer(first);
  json_.Integer(second);
  json_.EndArray();
}

void SceneJson::WriteRecording(const std::optional<host::Recording>& recording) {
  json_.Key("recording");
  if (!recording) return json_.Null();
  json_.BeginObject();
  json_.Key("rate");
  if (recording->rate) {
    WriteIntegers(recording->rate->numerator, recording->rate->denominator);
  } else {
    json_.Null();
  }
  WriteInteger("first_frame", recording->first_frame);
  json_.Key("unit");
  json_.String(recording->unit);
  json_.Key("source");
  json_.String(recording->source);
  json_.Key("turned_up");
  json_.Bool(recording->turned_up);
  json_.EndObject();
}

void SceneJson::WriteMeasurement(const std::optional<host::Measured>& measured) {
  constexpr std::array kManners = {"hide", "hold", "origin"};
  json_.Key("measured");
  if (!measured) return json_.Null();
  json_.BeginObject();
  json_.Key("made_by_import");
  json_.Bool(measured->made_by_import);
  json_.Key("gap_manner");
  json_.String(kManners[static_cast<std::size_t>(measured->manner)]);
  json_.Key("gaps");
  json_.BeginArray(Layout::kLines);
  for (const host::Gap& gap : measured->gaps) WriteIntegers(gap.first, gap.last);
  json_.EndArray();
  json_.EndObject();
}

void SceneJson::WriteMode(const char* key, const host::SuspendableMode& mode) {
  json_.Key(key);
  json_.BeginObject();
  json_.Key("on");
  json_.Bool(mode.IsOn());
  WriteInteger("suspend_count", static_cast<std::int64_t>(mode.SuspendDepth()));
  WriteInteger("unmatched_resumes", static_cast<std::int64_t>(mode.UnmatchedResumes()));
  json_.EndObject();
}

void SceneJson::WriteSelection(const host::Scene& scene, const std::vector<SceneTreeEntry>& tree) {
  std::unordered_map<const host::Node*, std::size_t> indices;
  for (std::size_t i = 0; i < tree.size(); ++i) indices.emplace(tree[i].node, i);
  json_.Key("selection");
  json_.BeginArray(Layout::kOneLine);
  for (const host::Node* node : scene.Selection()) {
    json_.Integer(static_cast<std::int64_t>(indices.at(node)));
  }
  json_.EndArray();
}

void SceneJson::WriteNode(const SceneTreeEntry& entry, std::size_t index, TimeValue time) {
  const host::Node& node = *entry.node;
  host::TransformController& transform = *node.Transform();
  json_.BeginObject();
  json_.Key("name");
  json_.String(node.Name());
  json_.Key("parent");
  entry.parent == index ? json_.Null() : json_.Integer(static_cast<std::int64_t>(entry.parent));
  WriteObject(node);
  WriteProperties(node);
  WriteInteger("color", node.WireColor());
  WriteBoneFlags(node);
  json_.Key("transform_class");
  WriteClass(transform.ClassID());
  WriteController("position", "linear", transform.Position(), time);
  WriteController("rotation", transform.Rotation().KindName(), transform.Rotation(), time);
  WriteController("scale", "linear", transform.Scale(), time);
  WriteMeasurement(node.Measurement());
  json_.EndObject();
}

void SceneJson::WriteObject(const host::Node& node) {
  ::Object& object = node.ShownObject()->AsObject();
  json_.Key("object");
  json_.String(node.ShownObject()->KindName());
  WriteInteger("super_class", object.SuperClassID());
  json_.Key("class");
  WriteClass(object.ClassID());
  json_.Key("parameters");
  json_.BeginArray(Layout::kOneLine);
  for (const double parameter : node.ShownObject()->Parameters()) json_.Number(parameter);
  json_.EndArray();
}

void SceneJson::WriteProperties(const host::Node& node) {
  json_.Key("user_properties");
  json_.BeginObject();
  for (const auto& [key, value] : node.Properties()) {
    json_.Key(key);
    json_.Number(value);
  }
  json_.EndObject();
}

void SceneJson::WriteBoneFlags(const host::Node& node) {
  WriteInteger("bone_display", node.BoneDisplay());
  json_.Key("bone_since");
  node.IsBone() ? json_.Integer(*node.BoneSince()) : json_.Null();
}

template <typename KeyedController>
void SceneJson::WriteController(const char* key, const char* kind, KeyedController& controller,
                                TimeValue time) {
  json_.Key(key);
  json_.BeginObject();
  json_.Key("value");
  json_.BeginArray(Layout::kOneLine);
  WriteComponents(controller.ValueAt(time));
  json_.EndArray();
  json_.Key("kind");
  json_.String(kind);
  WriteInteger("super_class", controller.SuperClassID());
  json_.Key("class");
  WriteClass(controller.ClassID());
  json_.Key("keys");
  json_.BeginArray(Layout::kLines);
  for (std::size_t i = 0; i < controller.KeyCount(); ++i) {
    json_.BeginArray(Layout::kOneLine);
    json_.Integer(controller.KeyTick(i));
    WriteComponents(controller.KeyValue(i));
    json_.EndArray();
  }
  json_.EndArray();
  json_.EndObject();
}

void SceneJson::WriteClass(ClassId class_id) {
  json_.BeginArray(Layout::kOneLine);
  json_.Integer(class_id.PartA());
  json_.Integer(class_id.PartB());
  json_.EndArray();
}

void SceneJson::WriteInteger(const char* key, std::int64_t value) {
  json_.Key(key);
  json_.Integer(value);
}

}  // namespace

void PrintSceneJson(const std::string& file, const host::Scene& scene, std::ostream& out) {
  SceneJson(out).Write(file, scene);
}

}  // namespace cli
