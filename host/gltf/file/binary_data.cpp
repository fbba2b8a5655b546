#include "host/gltf/file/binary_data.h"

#include <cassert>

#include "host/gltf/file/json_text.h"

namespace host::gltf {

namespace {

constexpr int kVertexTarget = 34962;
constexpr int kTriangleTarget = 34963;

// MadeNumbers lie at a multiple of their size.
constexpr std::size_t kAlignment = 4;

std::string_view BytesOf(const std::vector<float>& numbers) {
  return {reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof(float)};
}

}  // namespace

int BinaryData::AddPositions(MadeNumbers positions, const Bounds& bounds) {
  OwnView(kVertexTarget);
  return Add(std::move(positions), kThreeNumbersForm, &bounds);
}

int BinaryData::AddNormals(MadeNumbers normals) {
  OwnView(kVertexTarget);
  return Add(std::move(normals), kThreeNumbersForm);
}

int BinaryData::AddJoints(MadeNumbers joints) {
  OwnView(kVertexTarget);
  return Add(std::move(joints), kJointsForm);
}

int BinaryData::AddWeights(MadeNumbers weights) {
  OwnView(kVertexTarget);
  return Add(std::move(weights), kFourNumbersForm);
}

int BinaryData::AddTriangles(MadeNumbers vertices) {
  OwnView(kTriangleTarget);
  return Add(std::move(vertices), kWordForm);
}

int BinaryData::AddMatrices(MadeNumbers matrices) {
  BeginView();
  return Add(std::move(matrices), kMatrixForm);
}

int BinaryData::AddKeyTimes(const std::vector<float>& seconds) {
  KeyView();
  Bounds bounds(1);
  bounds.Add(seconds);
  return AddKeys(seconds, kNumberForm, &bounds);
}

int BinaryData::AddKeyVectors(const std::vector<float>& vectors) {
  KeyView();
  return AddKeys(vectors, kThreeNumbersForm);
}

int BinaryData::AddKeyRotations(const std::vector<float>& rotations) {
  KeyView();
  return AddKeys(rotations, kFourNumbersForm);
}

void BinaryData::Append(MadeNumbers numbers) {
  assert(!views_.empty());
  if (numbers.size == 0) return;
  views_.back().size += numbers.size;
  size_ += numbers.size;
  parts_.emplace_back(std::move(numbers));
}

std::optional<int> BinaryData::AddViewAccessor(const ElementForm& form) {
  assert(!views_.empty());
  if (views_.back().size == 0) {
    views_.pop_back();
    return std::nullopt;
  }
  return AddAccessor(0, form, nullptr);
}

void BinaryData::AppendTo(Output& output) const {
  for (const auto& part : parts_) {
    if (const auto* held = std::get_if<Blocks>(&part)) {
      output.Append(*held);
    } else {
      std::get<MadeNumbers>(part).append(output);
    }
  }
}

int BinaryData::OwnView(int target) {
  constexpr char kPadding[kAlignment] = {};
  const auto over = static_cast<std::size_t>(size_ % kAlignment);
  Hold({kPadding, (kAlignment - over) % kAlignment});
  views_.push_back({size_, 0, target});
  return static_cast<int>(views_.size()) - 1;
}

void BinaryData::KeyView() {
  if (views_.empty() || key_views_ != views_.size()) {
    BeginView();
    key_views_ = views_.size();
  }
}

void BinaryData::Hold(std::string_view bytes) {
  if (bytes.empty()) return;
  if (parts_.empty() || !std::holds_alternative<Blocks>(parts_.back())) parts_.emplace_back();
  std::get<Blocks>(parts_.back()).Tail() += bytes;
  size_ += bytes.size();
}

int BinaryData::Add(MadeNumbers numbers, const ElementForm& form, const Bounds* bounds) {
  assert(numbers.size > 0 && numbers.size % form.bytes == 0);
  const std::uint64_t offset = views_.back().size;
  Append(std::move(numbers));
  return AddAccessor(offset, form, bounds);
}

int BinaryData::AddKeys(const std::vector<float>& numbers, const ElementForm& form,
                        const Bounds* bounds) {
  const std::string_view bytes = BytesOf(numbers);
  assert(!bytes.empty() && bytes.size() % form.bytes == 0);
  const std::uint64_t offset = views_.back().size;
  Hold(bytes);
  views_.back().size += bytes.size();
  return AddAccessor(offset, form, bounds);
}

int BinaryData::AddAccessor(std::uint64_t offset, const ElementForm& form, const Bounds* bounds) {
  return accessors_.AddText([&](std::string& text) {
    JsonObject accessor(text);
    accessor.Add("bufferView", views_.size() - 1);
    if (offset > 0) accessor.Add("byteOffset", offset);
    accessor.Add("componentType", form.component_type);
    accessor.Add("count", (views_.back().size - offset) / form.bytes);
    if (bounds != nullptr) accessor.Add("max", bounds->Largest());
    if (bounds != nullptr) accessor.Add("min", bounds->Smallest());
    accessor.Add("type", form.type);
    accessor.End();
  });
}

}  // namespace host::gltf
