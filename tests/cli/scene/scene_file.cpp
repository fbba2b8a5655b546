#include "tests/cli/scene/scene_file.h"

#include <cstring>
#include <map>

#include "tests/support/files.h"

namespace test {
namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);
constexpr std::size_t kFileHeader = 12;
constexpr std::size_t kChunkHeader = 8;

std::size_t ReadSize(const std::string& bytes, std::size_t at) {
  std::uint32_t size = 0;
  std::memcpy(&size, bytes.data() + at, sizeof size);
  return size;
}

using Vector = std::array<double, 4>;

// `point` turned by the unit quaternion `q`.
Vector Turn(const Vector& q, const Vector& point) {
  const Vector t = {2 * (q[1] * point[2] - q[2] * point[1]),
                    2 * (q[2] * point[0] - q[0] * point[2]),
                    2 * (q[0] * point[1] - q[1] * point[0]), 0};
  return {point[0] + q[3] * t[0] + q[1] * t[2] - q[2] * t[1],
          point[1] + q[3] * t[1] + q[2] * t[0] - q[0] * t[2],
          point[2] + q[3] * t[2] + q[0] * t[1] - q[1] * t[0], 0};
}

}  // namespace

SceneFile::SceneFile(const std::string& path) {
  const std::string bytes = ReadFile(path);
  if (bytes.compare(0, 4, "glTF") != 0) throw std::runtime_error(path + " is no .glb file");
  const std::size_t json_size = ReadSize(bytes, kFileHeader);
  json_ = nlohmann::json::parse(bytes.substr(kFileHeader + kChunkHeader, json_size));
  binary_ = bytes.substr(kFileHeader + 2 * kChunkHeader + json_size);
  Index();
}

std::vector<std::string> SceneFile::NodeNames() const {
  std::vector<std::string> names;
  for (const auto& node : json_["nodes"]) names.push_back(node.value("name", ""));
  return names;
}

std::vector<double> SceneFile::KeyTimes(const std::string& name, const std::string& path) const {
  std::vector<double> times;
  const nlohmann::json* sampler = SamplerOf(Find(name), path);
  if (sampler == nullptr) return times;
  const std::size_t input = (*sampler)["input"];
  const std::size_t count = json_["accessors"][input]["count"];
  for (std::size_t i = 0; i < count; ++i) times.push_back(Element(input, i)[0]);
  return times;
}

std::optional<std::array<double, 3>> SceneFile::SeenAt(const std::string& name,
                                                       double seconds) const {
  std::size_t node = Find(name);
  const Vector scale = ValueAt(node, "scale", {1, 1, 1, 0}, seconds);
  if (scale[0] == 0.0 && scale[1] == 0.0 && scale[2] == 0.0) return std::nullopt;
  Vector point = ValueAt(node, "translation", {0, 0, 0, 0}, seconds);
  for (node = ParentOf(node); node != kNone; node = ParentOf(node)) {
    const Vector stretch = Property(node, "scale", {1, 1, 1, 0}, 0);
    const Vector move = Property(node, "translation", {0, 0, 0, 0}, 0);
    for (std::size_t i = 0; i < 3; ++i) point[i] *= stretch[i];
    point = Turn(Property(node, "rotation", {0, 0, 0, 1}, 0), point);
    for (std::size_t i = 0; i < 3; ++i) point[i] += move[i];
  }
  return std::array<double, 3>{point[0], point[1], point[2]};
}

std::array<double, 3> SceneFile::Position(const std::string& name, std::size_t key) const {
  Vector point = {0, 0, 0, 0};
  for (std::size_t node = Find(name); node != kNone; node = ParentOf(node)) {
    const Vector scale = Property(node, "scale", {1, 1, 1, 0}, key);
    const Vector move = Property(node, "translation", {0, 0, 0, 0}, key);
    for (std::size_t i = 0; i < 3; ++i) point[i] *= scale[i];
    point = Turn(Property(node, "rotation", {0, 0, 0, 1}, key), point);
    for (std::size_t i = 0; i < 3; ++i) point[i] += move[i];
  }
  return {point[0], point[1], point[2]};
}

void SceneFile::Index() {
  for (std::size_t node = 0; node < json_["nodes"].size(); ++node) {
    nodes_.emplace(json_["nodes"][node].value("name", ""), node);
    for (const std::size_t child :
         json_["nodes"][node].value("children", std::vector<std::size_t>())) {
      parents_[child] = node;
    }
  }
  if (!json_.contains("animations")) return;
  for (const auto& channel : json_["animations"][0]["channels"]) {
    const auto& target = channel["target"];
    samplers_[{target["node"], target["path"]}] = channel["sampler"];
  }
}

std::size_t SceneFile::Find(const std::string& name) const {
  const auto node = nodes_.find(name);
  if (node == nodes_.end()) throw std::runtime_error("no node " + name);
  return node->second;
}

std::size_t SceneFile::ParentOf(std::size_t node) const {
  const auto parent = parents_.find(node);
  return parent == parents_.end() ? kNone : parent->second;
}

const nlohmann::json* SceneFile::SamplerOf(std::size_t node, const std::string& path) const {
  const auto sampler = samplers_.find({node, path});
  return sampler == samplers_.end() ? nullptr
                                    : &json_["animations"][0]["samplers"][sampler->second];
}

SceneFile::Vector SceneFile::Element(std::size_t accessor_index, std::size_t index) const {
  static const std::map<std::string, std::size_t> widths = {
      {"SCALAR", 1}, {"VEC3", 3}, {"VEC4", 4}};
  const nlohmann::json& accessor = json_["accessors"][accessor_index];
  const nlohmann::json& view = json_["bufferViews"][accessor["bufferView"].get<std::size_t>()];
  const std::size_t width = widths.at(accessor["type"].get<std::string>());
  const std::size_t start = view.value("byteOffset", std::size_t{0}) +
                            accessor.value("byteOffset", std::size_t{0}) +
                            index * width * sizeof(float);
  Vector element{};
  for (std::size_t i = 0; i < width; ++i) {
    float number = 0;
    std::memcpy(&number, binary_.data() + start + i * sizeof number, sizeof number);
    element[i] = number;
  }
  return element;
}

// As a viewer reads it: by the sampler's interpolation between the keys around the time.
SceneFile::Vector SceneFile::ValueAt(std::size_t node, const std::string& path, Vector otherwise,
                                     double seconds) const {
  const nlohmann::json* const sampler = SamplerOf(node, path);
  if (sampler == nullptr) return Property(node, path, otherwise, 0);
  const std::size_t input = (*sampler)["input"];
  const std::size_t output = (*sampler)["output"];
  const std::size_t count = json_["accessors"][input]["count"];
  std::size_t after = 0;
  for (std::size_t left = count; left > 0;) {
    const std::size_t half = left / 2;
    const bool is_before = Element(input, after + half)[0] <= seconds;
    after += is_before ? half + 1 : 0;
    left = is_before ? left - half - 1 : half;
  }
  if (after == 0) return Element(output, 0);
  Vector value = Element(output, after - 1);
  if (after == count || sampler->value("interpolation", "LINEAR") == "STEP") return value;
  const double start = Element(input, after - 1)[0];
  const double part = (seconds - start) / (Element(input, after)[0] - start);
  const Vector next = Element(output, after);
  for (std::size_t i = 0; i < 3; ++i) value[i] += part * (next[i] - value[i]);
  return value;
}

SceneFile::Vector SceneFile::Property(std::size_t node, const std::string& path, Vector otherwise,
                                      std::size_t key) const {
  if (const nlohmann::json* sampler = SamplerOf(node, path)) {
    return Element((*sampler)["output"], key);
  }
  if (!json_["nodes"][node].contains(path)) return otherwise;
  const auto numbers = json_["nodes"][node][path].get<std::vector<double>>();
  std::copy(numbers.begin(), numbers.end(), otherwise.begin());
  return otherwise;
}

}  // namespace test
