#include "host/gltf/file/key_counts.h"

#include "host/gltf/file/binary_data.h"

namespace host::gltf {

namespace {

constexpr std::uint64_t kAnglesSize = 3 * sizeof(double);

// What both halves of a file have.
std::uint64_t ValuesSize(const KeyCounts& keys) {
  return keys.vectors * kThreeNumbersForm.bytes + keys.rotations * kFourNumbersForm.bytes;
}

}  // namespace

std::uint64_t LeastSize(const KeyCounts& shown, const KeyCounts& kept) {
  return ValuesSize(shown) + ValuesSize(kept) + kept.angles * kAnglesSize;
}

}  // namespace host::gltf
