#include "host/gltf/kept/stored_keys.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>

#include "host/gltf/file/binary_data.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/file/stored_view.h"
#include "host/gltf/kept/kept_fields.h"

namespace host::gltf {

namespace {

constexpr std::size_t kAnglesPerKey = 3;

// The bytes of the accessor that the member `name` of `extension` is the index of; none when there
// is no such member.
std::string_view Accessor(const FileParts& file, const JsonField& extension, const char* name,
                          const ElementForm& form) {
  const auto reference = extension.FindMember(name);
  if (!reference) return {};
  const JsonField accessor = ElementOf(file, "accessors", *reference).field;
  accessor.Member("componentType").Whole(form.component_type, form.component_type);
  const JsonField type = accessor.Member("type");
  if (type.Text() != form.type) type.Refuse(std::string("not ") + form.type);
  const std::string_view bytes =
      BytesBehind(accessor, StoredView(file, accessor.Member("bufferView")));
  const std::size_t most = bytes.size() / form.bytes;
  return bytes.substr(0, Extent(accessor.Member("count"), most) * form.bytes);
}

template <typename Number>
std::vector<Number> Numbers(std::string_view bytes) {
  std::vector<Number> numbers(bytes.size() / sizeof(Number));
  if (!numbers.empty()) std::memcpy(numbers.data(), bytes.data(), bytes.size());
  return numbers;
}

// Takes the next numbers from `bytes`, `width` for each of the keys that the field `count` tells.
template <typename Number>
std::vector<Number> TakeNumbers(const JsonField& count, std::size_t width,
                                std::string_view& bytes) {
  const auto keys = Extent(count, std::numeric_limits<std::int32_t>::max());
  const std::size_t key_size = width * sizeof(Number);
  if (keys > bytes.size() / key_size) count.Refuse("more than the file holds");
  const auto numbers = Numbers<Number>(bytes.substr(0, keys * key_size));
  bytes.remove_prefix(keys * key_size);
  if (!AreFinite(numbers)) count.Refuse("the number of keys that are not all finite");
  return numbers;
}

}  // namespace

StoredKeys::StoredKeys(const FileParts& file, const JsonField& extension)
    : ticks_(Accessor(file, extension, field::kTicks, kWordForm)),
      vectors_(Accessor(file, extension, field::kVectors, kThreeNumbersForm)),
      rotations_(Accessor(file, extension, field::kRotations, kFourNumbersForm)),
      angles_(Accessor(file, extension, field::kAngles, kWordForm)) {}

std::vector<float> StoredKeys::TakeValues(const JsonField& count, std::size_t width) {
  assert(width == 3 || width == 4);
  return TakeNumbers<float>(count, width, width == 3 ? vectors_ : rotations_);
}

std::vector<double> StoredKeys::TakeAngles(const JsonField& count) {
  return TakeNumbers<double>(count, kAnglesPerKey, angles_);
}

std::vector<TimeValue> StoredKeys::Ticks(const JsonField& first, std::size_t count) const {
  const std::size_t size = ticks_.size() / sizeof(TimeValue);
  const std::size_t start = Extent(first, size);
  if (count > size - start) first.Refuse("the index of fewer ticks than there are keys");
  const auto ticks =
      Numbers<TimeValue>(ticks_.substr(start * sizeof(TimeValue), count * sizeof(TimeValue)));
  const auto falls = std::adjacent_find(ticks.begin(), ticks.end(), std::greater_equal<>());
  if (falls != ticks.end()) first.Refuse("the index of ticks that do not rise");
  return ticks;
}

}  // namespace host::gltf
