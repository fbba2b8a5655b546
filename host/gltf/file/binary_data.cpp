#include "host/gltf/file/binary_data.h"

#include <algorithm>
#include <cassert>

namespace host::gltf {

namespace {

using nlohmann::json;

constexpr int kVertexTarget = 34962;
constexpr int kTriangleTarget = 34963;

// Numbers lie at a multiple of their size.
constexpr std::size_t kAlignment = 4;

json AccessorRecord(std::size_t view, std::size_t offset, std::size_t bytes,
                    const ElementForm& form) {
  json record = {{"bufferView", view},
                 {"componentType", form.component_type},
                 {"count", bytes / form.bytes},
                 {"type", form.type}};
  if (offset > 0) record["byteOffset"] = offset;
  return record;
}

// Sets the smallest and the largest of each component, which some accessors must have.
void SetBounds(const std::vector<float>& numbers, std::size_t width, json& accessor) {
  const auto first_end = numbers.begin() + static_cast<std::ptrdiff_t>(width);
  std::vector<float> smallest(numbers.begin(), first_end);
  std::vector<float> largest = smallest;
  for (std::size_t i = width; i < numbers.size(); ++i) {
    smallest[i % width] = std::min(smallest[i % width], numbers[i]);
    largest[i % width] = std::max(largest[i % width], numbers[i]);
  }
  accessor["min"] = smallest;
  accessor["max"] = largest;
}

}  // namespace

int BinaryData::AddPositions(const std::vector<float>& positions) {
  OwnView(kVertexTarget);
  return AddWithBounds(positions, kThreeNumbersForm);
}

int BinaryData::AddNormals(const std::vector<float>& normals) {
  OwnView(kVertexTarget);
  return Add(normals, kThreeNumbersForm);
}

int BinaryData::AddJoints(const std::vector<std::uint16_t>& joints) {
  OwnView(kVertexTarget);
  return Add(joints, kJointsForm);
}

int BinaryData::AddWeights(const std::vector<float>& weights) {
  OwnView(kVertexTarget);
  return Add(weights, kFourNumbersForm);
}

int BinaryData::AddTriangles(const std::vector<std::uint32_t>& vertices) {
  OwnView(kTriangleTarget);
  return Add(vertices, kWordForm);
}

int BinaryData::AddMatrices(const std::vector<float>& matrices) {
  BeginView();
  return Add(matrices, kMatrixForm);
}

int BinaryData::AddKeyTimes(const std::vector<float>& seconds) {
  KeyView();
  return AddWithBounds(seconds, kNumberForm);
}

int BinaryData::AddKeyVectors(const std::vector<float>& vectors) {
  KeyView();
  return Add(vectors, kThreeNumbersForm);
}

int BinaryData::AddKeyRotations(const std::vector<float>& rotations) {
  KeyView();
  return Add(rotations, kFourNumbersForm);
}

void BinaryData::Append(std::string_view bytes) {
  assert(!views_.empty());
  bytes_ += bytes;
  views_.back().size += bytes.size();
}

std::optional<int> BinaryData::AddViewAccessor(const ElementForm& form) {
  assert(!views_.empty());
  const std::size_t size = views_.back().size;
  if (size == 0) {
    views_.pop_back();
    return std::nullopt;
  }
  return accessors_.Add(AccessorRecord(views_.size() - 1, 0, size, form));
}

int BinaryData::OwnView(int target) {
  bytes_.resize((bytes_.size() + kAlignment - 1) / kAlignment * kAlignment);
  views_.push_back({bytes_.size(), 0, target});
  return static_cast<int>(views_.size()) - 1;
}

void BinaryData::KeyView() {
  if (views_.empty() || key_views_ != views_.size()) {
    BeginView();
    key_views_ = views_.size();
  }
}

template <typename Number>
int BinaryData::Add(const std::vector<Number>& numbers, const ElementForm& form) {
  assert(!numbers.empty() && numbers.size() * sizeof numbers[0] % form.bytes == 0);
  const std::size_t offset = views_.back().size;
  AppendNumbers(numbers);
  return accessors_.Add(
      AccessorRecord(views_.size() - 1, offset, views_.back().size - offset, form));
}

int BinaryData::AddWithBounds(const std::vector<float>& numbers, const ElementForm& form) {
  assert(!numbers.empty() && numbers.size() * sizeof numbers[0] % form.bytes == 0);
  const std::size_t offset = views_.back().size;
  AppendNumbers(numbers);
  json record = AccessorRecord(views_.size() - 1, offset, views_.back().size - offset, form);
  SetBounds(numbers, form.bytes / sizeof(float), record);
  return accessors_.Add(record);
}

}  // namespace host::gltf
