#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/gltf/file/json_field.h"
#include "host/gltf/file/parsed_json.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/file/stored_view.h"
#include "host/gltf/kept/kept_fields.h"
#include "host/gltf/kept/kept_recording.h"
#include "host/gltf/kept/kept_scene.h"
#include "host/gltf/kept/kept_text.h"
#include "host/gltf/kept/kept_values.h"
#include "host/gltf/kept/restore_transform.h"
#include "host/gltf/kept/stored_keys.h"

namespace host::gltf {

namespace {

// --- Time ---

SuspendableMode Mode(const JsonField& record) {
  constexpr std::int64_t kMostResumes = std::int64_t{1} << 53U;
  const JsonField states = record.Member(field::kRemembered);
  std::vector<bool> remembered;
  for (std::size_t i = 0; i < states.Size(); ++i) remembered.push_back(states.Element(i).Bool());
  const auto resumes = record.Member(field::kUnmatchedResumes).Whole(0, kMostResumes);
  return {record.Member(field::kOn).Bool(), std::move(remembered),
          static_cast<std::size_t>(resumes)};
}

void RestoreTime(const JsonField& record, AnimationState& animation) {
  const auto rate = record.Member(field::kFrameRate).Whole(kMinimumFrameRate, kMaximumFrameRate);
  const JsonField range = record.Member(field::kRange);
  if (range.Size() != 2) range.Refuse("no pair of numbers");
  animation.SetFrameRate(static_cast<int>(rate));
  animation.SetRange({range.Element(0).Int(), range.Element(1).Int()});
  animation.SetTime(record.Member(field::kTime).Int());
  animation.AnimateMode() = Mode(record.Member(field::kAnimateMode));
  animation.SetKeyMode() = Mode(record.Member(field::kSetKeyMode));
}

// --- Nodes ---

void RestoreProperties(const JsonField& records, Node& node) {
  for (std::size_t i = 0; i < records.Size(); ++i) {
    const JsonField record = records.Element(i);
    const std::string key = TextOf(record, field::kKey);
    node.SetUserPropertyFloat(key.c_str(), record.Member(field::kValue).Float());
  }
}

Matrix3 MatrixIn(const JsonField& field) {
  const auto numbers = FloatsIn<12>(field);
  Matrix3 matrix;
  for (int row = 0; row < 4; ++row) {
    Point3 components;
    Compose(&numbers[static_cast<std::size_t>(row) * 3], components);
    matrix.SetRow(row, components);
  }
  return matrix;
}

void RestoreCommon(const JsonField& record, Node& node) {
  node.SetName(TextOf(record, field::kName).c_str());
  node.SetWireColor(record.Member(field::kColor).Word());
  node.SetBoneDisplay(record.Member(field::kBoneDisplay).Int());
  if (const auto since = record.FindMember(field::kBoneSince)) {
    node.SetBoneEnabled(1, since->Int());
  }
  if (const auto offset = record.FindMember(field::kObjectOffset)) {
    node.SetObjectOffset(MatrixIn(*offset));
  }
  if (const auto properties = record.FindMember(field::kProperties)) {
    RestoreProperties(*properties, node);
  }
}

std::vector<double> NumbersIn(const JsonField& list) {
  std::vector<double> numbers;
  for (std::size_t i = 0; i < list.Size(); ++i) numbers.push_back(list.Element(i).Number());
  return numbers;
}

// A node under the root that shows the object in `record`.
Node& NodeWithObject(const JsonField& record, Scene& scene) {
  const SuperClassId super_class = record.Member(field::kSuperClass).Word();
  const bool is_object =
      super_class == kGeometricObjectSuperClass || super_class == kHelperSuperClass;
  ClassInstance* instance =
      is_object ? scene.CreateInstance(super_class, ClassIn(record.Member(field::kClass)))
                : nullptr;
  if (instance == nullptr) record.Refuse("of no class that nodes can show");
  Node& node = *scene.CreateNode(static_cast<::Object*>(instance));
  const JsonField parameters = record.Member(field::kParameters);
  if (!node.ShownObject()->SetParameters(NumbersIn(parameters))) {
    parameters.Refuse("not what objects of this class have");
  }
  return node;
}

// Parents stand before their children, so that there are no circles.
Node& ParentIn(const JsonField& record, const std::vector<Node*>& nodes, Scene& scene) {
  const auto count = static_cast<std::int64_t>(nodes.size());
  const auto parent = record.Member(field::kParent).Whole(-1, count - 1);
  return parent == -1 ? scene.Root() : *nodes[static_cast<std::size_t>(parent)];
}

Node& RestoreNode(const JsonField& record, const std::vector<Node*>& nodes, StoredKeys& keys,
                  Scene& scene) {
  Node& node = NodeWithObject(record.Member(field::kObject), scene);
  ParentIn(record, nodes, scene).AttachChild(&node, false);
  RestoreCommon(record, node);
  RestoreTransform(record, keys, scene, *node.Transform());
  if (const auto measurement = record.FindMember(field::kMeasurement)) {
    node.SetMeasurement(MeasurementIn(*measurement));
  }
  return node;
}

// What stands before the next line break of `text`, which is taken away.
std::string_view TakeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  return line;
}

// One line after the other: all nodes at once take many times the memory.
std::vector<Node*> RestoreNodes(std::string_view lines, StoredKeys keys, Scene& scene) {
  std::vector<Node*> nodes;
  while (!lines.empty()) {
    const nlohmann::json node = ParsedJson(TakeLine(lines));
    const JsonField record(node, "nodes[" + std::to_string(nodes.size()) + "]");
    nodes.push_back(&RestoreNode(record, nodes, keys, scene));
  }
  return nodes;
}

void RestoreSelection(const JsonField& record, const std::vector<Node*>& nodes, Scene& scene) {
  const auto last = static_cast<std::int64_t>(nodes.size()) - 1;
  for (std::size_t i = 0; i < record.Size(); ++i) {
    scene.Select(*nodes[static_cast<std::size_t>(record.Element(i).Whole(0, last))]);
  }
}

void RestoreUnit(const JsonField& millimeters, Scene& scene) {
  if (millimeters.Number() <= 0.0) millimeters.Refuse("not positive");
  scene.SetMillimetersPerUnit(millimeters.Number());
}

// Whether the file says that whoever wrote it left the scene out.
bool IsPlain(const nlohmann::json& document) {
  return document.contains(
      nlohmann::json::json_pointer(std::string("/asset/extras/") + field::kLeftOut));
}

// The part of the file that is ours.
JsonField Extension(const nlohmann::json& document) {
  const auto extensions = JsonField(document, "").FindMember("extensions");
  const auto own = extensions ? extensions->FindMember(kExtensionName) : std::nullopt;
  if (!own) {
    if (IsPlain(document)) {
      throw Refusal(
          "The file was written with --plain: it shows a scene to viewers and keeps none to go on "
          "with. Make it again without --plain.");
    }
    throw Refusal(
        "The file was not saved by this program, or another has saved it since: the extension "
        "ORVANE_scene is missing.");
  }
  return *own;
}

void RequireOurVersion(std::uint32_t version) {
  if (kOldestVersion <= version && version <= kExtensionVersion) return;
  throw Refusal("The scene in the file is kept in form " + std::to_string(version) +
                ", and this program reads forms " + std::to_string(kOldestVersion) + " to " +
                std::to_string(kExtensionVersion) +
                ": read the file with the program that wrote it, or make it again.");
}

}  // namespace

std::set<std::string> MembersOfScenes() {
  return {"accessors", "asset", "buffers", "bufferViews", "extensions"};
}

bool KeepsScene(const FileParts& file) {
  return file.document.contains(
      nlohmann::json::json_pointer(std::string("/extensions/") + kExtensionName));
}

void RestoreScene(const FileParts& file, Scene& scene) {
  const JsonField extension = Extension(file.document);
  RequireOurVersion(extension.Member(field::kVersion).Word());
  std::string_view lines = StoredView(file, extension.Member(field::kScene));
  const nlohmann::json kept = ParsedJson(TakeLine(lines));
  const JsonField record(kept, "");
  RestoreTime(record, scene.Animation());
  RestoreUnit(record.Member(field::kMillimetersPerUnit), scene);
  if (const auto recording = record.FindMember(field::kRecording)) {
    scene.SetRecording(RecordingIn(*recording));
  }
  RestoreCommon(record.Member(field::kRoot), scene.Root());
  const std::vector<Node*> nodes = RestoreNodes(lines, StoredKeys(file, extension), scene);
  RestoreSelection(record.Member(field::kSelection), nodes, scene);
}

}  // namespace host::gltf
