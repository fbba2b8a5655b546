#pragma once

#include <cmath>
#include <cstring>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/host/gltf/open_file.h"

// Files of other makers, put together by hand: nodes, one skin and animations.

namespace test {

inline constexpr double kHalf = 0.70710678118654752;

class SkinFile {
 public:
  SkinFile() {
    document["asset"] = {{"version", "2.0"}};
    document["scenes"] = {{{"nodes", {0}}}};
    document["scene"] = 0;
    for (const char* list : {"nodes", "accessors", "bufferViews"}) {
      document[list] = nlohmann::json::array();
    }
  }

  // Adds a node under `parent`, -1 for none, and returns its index.
  int AddNode(const std::string& name, int parent, const nlohmann::json& members = {}) {
    const int index = static_cast<int>(document["nodes"].size());
    nlohmann::json node = {{"name", name}};
    if (!members.is_null()) node.update(members);
    document["nodes"].push_back(node);
    if (parent >= 0)
      document["nodes"][static_cast<std::size_t>(parent)]["children"].push_back(index);
    return index;
  }

  void AddSkin(const std::vector<int>& joints) {
    document["skins"].push_back({{"joints", joints}});
  }

  // The index of an accessor.
  int AddNumbers(const char* type, std::size_t width, const std::vector<float>& numbers) {
    const std::size_t size = numbers.size() * sizeof(float);
    document["bufferViews"].push_back(
        {{"buffer", 0}, {"byteOffset", binary.size()}, {"byteLength", size}});
    binary.append(reinterpret_cast<const char*>(numbers.data()), size);
    document["accessors"].push_back({{"bufferView", document["bufferViews"].size() - 1},
                                     {"componentType", 5126},
                                     {"count", numbers.size() / width},
                                     {"type", type}});
    return static_cast<int>(document["accessors"].size()) - 1;
  }

  void AddKeys(int node, const char* path, const std::vector<float>& seconds,
               const std::vector<float>& values, const char* join = "LINEAR",
               std::size_t animation = 0) {
    nlohmann::json& animations = document["animations"];
    while (animations.size() <= animation) {
      animations.push_back(
          {{"samplers", nlohmann::json::array()}, {"channels", nlohmann::json::array()}});
    }
    const bool is_turn = std::string(path) == "rotation";
    const int input = AddNumbers("SCALAR", 1, seconds);
    const int output = AddNumbers(is_turn ? "VEC4" : "VEC3", is_turn ? 4 : 3, values);
    nlohmann::json& one = animations[animation];
    one["samplers"].push_back({{"input", input}, {"output", output}, {"interpolation", join}});
    one["channels"].push_back(
        {{"sampler", one["samplers"].size() - 1}, {"target", {{"node", node}, {"path", path}}}});
  }

  // Inverse bind matrices for the first skin, of which each only moves.
  void BindAt(const std::vector<std::vector<float>>& places) {
    std::vector<float> matrices;
    for (const std::vector<float>& place : places) {
      matrices.insert(matrices.end(), {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0});
      matrices.insert(matrices.end(), {-place[0], -place[1], -place[2], 1});
    }
    document["skins"][0]["inverseBindMatrices"] = AddNumbers("MAT4", 16, matrices);
  }

  std::string Bytes() {
    document["buffers"] = {{{"byteLength", binary.size()}}};
    return OpenFile::Packed(document.dump(), binary);
  }

  nlohmann::json document;
  std::string binary;
};

}  // namespace test
