#pragma once

#include <array>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// A scene file as the tests look at it: independent of the code that wrote it.

namespace test {

class SceneFile {
 public:
  // Reads a .glb file. Throws when it is none.
  explicit SceneFile(const std::string& path);

  // The names of all nodes, in the file's order.
  std::vector<std::string> NodeNames() const;

  // When the node `name` has keys of its rotation, or of what `path` says, in seconds; empty when
  // it has none.
  std::vector<double> KeyTimes(const std::string& name, const std::string& path = "rotation") const;

  // Where a node without animated nodes above it is seen at a time in seconds, in metres, Y up;
  // nothing when its scale is 0 then.
  std::optional<std::array<double, 3>> SeenAt(const std::string& name, double seconds) const;

  // Where the origin of the node `name` stands, in metres, Y up, at key number `key` of every
  // animated node on the way.
  std::array<double, 3> Position(const std::string& name, std::size_t key) const;

 private:
  using Vector = std::array<double, 4>;

  void Index();
  std::size_t Find(const std::string& name) const;
  std::size_t ParentOf(std::size_t node) const;
  const nlohmann::json* SamplerOf(std::size_t node, const std::string& path) const;
  Vector Element(std::size_t accessor, std::size_t index) const;
  Vector ValueAt(std::size_t node, const std::string& path, Vector otherwise, double seconds) const;
  Vector Property(std::size_t node, const std::string& path, Vector otherwise,
                  std::size_t key) const;

  // By name, the first of it; by node; and by node and path of what is animated.
  std::map<std::string, std::size_t> nodes_;
  std::map<std::size_t, std::size_t> parents_;
  std::map<std::pair<std::size_t, std::string>, std::size_t> samplers_;
  nlohmann::json json_;
  std::string binary_;
};

}  // namespace test
