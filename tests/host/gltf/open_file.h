#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

// Scene files that tests damage.

namespace test {

// `number` as a binary file has it.
inline std::string Word(std::size_t number) {
  const auto word = static_cast<std::uint32_t>(number);
  std::string bytes(sizeof word, '\0');
  std::memcpy(bytes.data(), &word, sizeof word);
  return bytes;
}

// A binary file taken apart, so that a test can change any of it.
class OpenFile {
 public:
  explicit OpenFile(const std::string& bytes) {
    std::uint32_t json_size = 0;
    std::memcpy(&json_size, bytes.data() + 12, sizeof json_size);
    document = nlohmann::json::parse(bytes.substr(20, json_size));
    binary = bytes.substr(28 + json_size);
    const nlohmann::json& view = document["bufferViews"][SceneView()];
    std::istringstream lines(binary.substr(view.value("byteOffset", 0U), view["byteLength"]));
    std::string line;
    std::getline(lines, line);
    kept = nlohmann::json::parse(line);
    kept["nodes"] = nlohmann::json::array();
    while (std::getline(lines, line)) kept["nodes"].push_back(nlohmann::json::parse(line));
  }

  std::string Bytes() const {
    nlohmann::json scene = kept;
    scene.erase("nodes");
    std::string lines = scene.dump();
    for (const nlohmann::json& node : kept["nodes"]) lines += '\n' + node.dump();
    return BytesWithKept(lines);
  }

  nlohmann::json& Extension() { return document["extensions"]["ORVANE_scene"]; }

  // With `text` for what is kept; it stands behind all other data.
  std::string BytesWithKept(const std::string& text) const {
    nlohmann::json changed = document;
    if (changed.contains("extensions")) {
      changed["bufferViews"][SceneView()]["byteOffset"] = binary.size();
      changed["bufferViews"][SceneView()]["byteLength"] = text.size();
    }
    return Packed(changed.dump(), binary + text);
  }

  static std::string Packed(const std::string& document, const std::string& binary) {
    const std::size_t size = 28 + document.size() + binary.size();
    return "glTF" + Word(2) + Word(size) + Word(document.size()) + "JSON" + document +
           Word(binary.size()) + std::string("BIN\0", 4) + binary;
  }

  nlohmann::json document;
  nlohmann::json kept;  // the scene, with the nodes, which have lines of their own in the file
  std::string binary;

 private:
  std::size_t SceneView() const { return document["extensions"]["ORVANE_scene"]["scene"]; }
};

}  // namespace test
