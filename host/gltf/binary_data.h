#pragma once

#include <tiny_gltf.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace host::gltf {

// The numbers of a glTF file: appends them to the model's one buffer and describes them by an
// accessor each. Every function returns the accessor's index, but where it says so; none may be
// given an empty list.
class BinaryData {
 public:
  // `model` has no buffer yet, and outlives this.
  explicit BinaryData(tinygltf::Model& model) : model_(model) {}

  // Of vertices: x, y and z each; four joints each; four weights each.
  int AddPositions(const std::vector<float>& positions);
  int AddJoints(const std::vector<std::uint16_t>& joints);
  int AddWeights(const std::vector<float>& weights);

  // The vertices of triangles, three each.
  int AddTriangles(const std::vector<std::uint32_t>& vertices);

  // 16 numbers each, column by column.
  int AddMatrices(const std::vector<float>& matrices);

  // The times of keys, rising; and their values, which have three components or, for rotations,
  // four.
  int AddKeyTimes(const std::vector<float>& seconds);
  int AddKeyVectors(const std::vector<float>& vectors);
  int AddKeyRotations(const std::vector<float>& rotations);

  // Numbers of 32 bits of whatever meaning, which viewers have no use for.
  int AddWords(const std::vector<std::uint32_t>& words);

  // A view with `text` in it; the index is the view's.
  int AddText(std::string_view text);

 private:
  // Where numbers come to lie: in a view of their own for what graphics cards read, or in one that
  // all keys share.
  int OwnView(int target);
  int KeyView(std::size_t bytes);

  template <typename Number>
  int Add(const std::vector<Number>& numbers, int type, int view);

  tinygltf::Model& model_;
  int key_view_ = -1;
};

}  // namespace host::gltf
