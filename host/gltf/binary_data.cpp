#include "host/gltf/binary_data.h"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace host::gltf {

namespace {

constexpr int kNoTarget = 0;

// The library writes an accessor's offset within its view as an int.
constexpr std::size_t kLargestKeyView = std::numeric_limits<int>::max();

template <typename Number>
constexpr int ComponentType() {
  if constexpr (std::is_same_v<Number, float>) return TINYGLTF_COMPONENT_TYPE_FLOAT;
  if constexpr (std::is_same_v<Number, std::uint16_t>) {
    return TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT;
  }
  if constexpr (std::is_same_v<Number, std::uint32_t>) return TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT;
}

std::size_t Width(const tinygltf::Accessor& accessor) {
  const auto type = static_cast<std::uint32_t>(accessor.type);
  return static_cast<std::size_t>(tinygltf::GetNumComponentsInType(type));
}

// Sets the smallest and the largest of each component, which some accessors must have.
void SetBounds(const std::vector<float>& numbers, tinygltf::Accessor& accessor) {
  const std::size_t width = Width(accessor);
  accessor.minValues.assign(numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(width));
  accessor.maxValues = accessor.minValues;
  for (std::size_t i = width; i < numbers.size(); ++i) {
    double& smallest = accessor.minValues[i % width];
    double& largest = accessor.maxValues[i % width];
    smallest = std::min<double>(smallest, numbers[i]);
    largest = std::max<double>(largest, numbers[i]);
  }
}

}  // namespace

int BinaryData::AddPositions(const std::vector<float>& positions) {
  const int accessor = Add(positions, TINYGLTF_TYPE_VEC3, OwnView(TINYGLTF_TARGET_ARRAY_BUFFER));
  SetBounds(positions, model_.accessors.back());
  return accessor;
}

int BinaryData::AddJoints(const std::vector<std::uint16_t>& joints) {
  return Add(joints, TINYGLTF_TYPE_VEC4, OwnView(TINYGLTF_TARGET_ARRAY_BUFFER));
}

int BinaryData::AddWeights(const std::vector<float>& weights) {
  return Add(weights, TINYGLTF_TYPE_VEC4, OwnView(TINYGLTF_TARGET_ARRAY_BUFFER));
}

int BinaryData::AddTriangles(const std::vector<std::uint32_t>& vertices) {
  return Add(vertices, TINYGLTF_TYPE_SCALAR, OwnView(TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER));
}

int BinaryData::AddMatrices(const std::vector<float>& matrices) {
  return Add(matrices, TINYGLTF_TYPE_MAT4, OwnView(kNoTarget));
}

int BinaryData::AddKeyTimes(const std::vector<float>& seconds) {
  const int accessor = Add(seconds, TINYGLTF_TYPE_SCALAR, KeyView(seconds.size() * sizeof(float)));
  SetBounds(seconds, model_.accessors.back());
  return accessor;
}

int BinaryData::AddKeyVectors(const std::vector<float>& vectors) {
  return Add(vectors, TINYGLTF_TYPE_VEC3, KeyView(vectors.size() * sizeof(float)));
}

int BinaryData::AddKeyRotations(const std::vector<float>& rotations) {
  return Add(rotations, TINYGLTF_TYPE_VEC4, KeyView(rotations.size() * sizeof(float)));
}

int BinaryData::AddWords(const std::vector<std::uint32_t>& words) {
  return Add(words, TINYGLTF_TYPE_SCALAR, KeyView(words.size() * sizeof(std::uint32_t)));
}

int BinaryData::AddText(std::string_view text) {
  const int view = OwnView(kNoTarget);
  std::vector<unsigned char>& buffer = model_.buffers.front().data;
  buffer.insert(buffer.end(), text.begin(), text.end());
  model_.bufferViews.back().byteLength = text.size();
  return view;
}

int BinaryData::OwnView(int target) {
  if (model_.buffers.empty()) model_.buffers.emplace_back();
  tinygltf::BufferView& view = model_.bufferViews.emplace_back();
  view.buffer = 0;
  view.byteOffset = model_.buffers.front().data.size();
  view.target = target;
  return static_cast<int>(model_.bufferViews.size()) - 1;
}

int BinaryData::KeyView(std::size_t bytes) {
  const bool last = key_view_ == static_cast<int>(model_.bufferViews.size()) - 1;
  if (key_view_ == -1 || !last || model_.bufferViews.back().byteLength + bytes > kLargestKeyView) {
    key_view_ = OwnView(kNoTarget);
  }
  return key_view_;
}

template <typename Number>
int BinaryData::Add(const std::vector<Number>& numbers, int type, int view_index) {
  tinygltf::BufferView& view = model_.bufferViews[static_cast<std::size_t>(view_index)];
  tinygltf::Accessor& accessor = model_.accessors.emplace_back();
  accessor.bufferView = view_index;
  accessor.byteOffset = view.byteLength;
  accessor.componentType = ComponentType<Number>();
  accessor.type = type;
  accessor.count = numbers.size() / Width(accessor);

  const auto* bytes = reinterpret_cast<const unsigned char*>(numbers.data());
  const std::size_t size = numbers.size() * sizeof(Number);
  std::vector<unsigned char>& buffer = model_.buffers.front().data;
  buffer.insert(buffer.end(), bytes, bytes + size);
  view.byteLength += size;
  return static_cast<int>(model_.accessors.size()) - 1;
}

}  // namespace host::gltf
