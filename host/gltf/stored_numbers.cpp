#include "host/gltf/stored_numbers.h"

#include <cstring>

namespace host::gltf {

namespace {

constexpr int kUnsignedInt = 5125;
constexpr int kFloat = 5126;
constexpr std::size_t kNumberBytes = 4;

// The element of the document's array `name` that `reference` is the index of.
JsonField Target(const FileParts& file, const char* name, const JsonField& reference) {
  const auto targets = JsonField(file.document, "").FindMember(name);
  const std::size_t size = targets ? targets->Size() : 0;
  if (size == 0) reference.Refuse(std::string("an index, but the file has no ") + name);
  return targets->Element(
      static_cast<std::size_t>(reference.Whole(0, static_cast<std::int64_t>(size) - 1)));
}

// A size or an offset of the document, no larger than `most`.
std::size_t Extent(const JsonField& field, std::size_t most) {
  return static_cast<std::size_t>(field.Whole(0, static_cast<std::int64_t>(most)));
}

// `bytes` from the offset in `field` on.
std::string_view Behind(const JsonField& field, std::string_view bytes) {
  const auto offset = field.FindMember("byteOffset");
  return bytes.substr(offset ? Extent(*offset, bytes.size()) : 0);
}

template <typename Number>
std::vector<Number> Numbers(std::string_view bytes) {
  std::vector<Number> numbers(bytes.size() / sizeof(Number));
  if (!numbers.empty()) std::memcpy(numbers.data(), bytes.data(), bytes.size());
  return numbers;
}

}  // namespace

std::string_view StoredNumbers::View(const JsonField& reference) const {
  const JsonField view = Target(file_, "bufferViews", reference);
  view.Member("buffer").Whole(0, 0);
  const std::string_view bytes = Behind(view, file_.binary);
  return bytes.substr(0, Extent(view.Member("byteLength"), bytes.size()));
}

std::string_view StoredNumbers::Accessor(const JsonField& reference, const Form& form) const {
  const JsonField accessor = Target(file_, "accessors", reference);
  accessor.Member("componentType").Whole(form.component_type, form.component_type);
  const JsonField type = accessor.Member("type");
  if (type.Text() != form.type) type.Refuse(std::string("not ") + form.type);
  const std::string_view bytes = Behind(accessor, View(accessor.Member("bufferView")));
  const std::size_t most = bytes.size() / form.element_bytes;
  return bytes.substr(0, Extent(accessor.Member("count"), most) * form.element_bytes);
}

std::vector<float> StoredNumbers::Floats(const JsonField& reference, std::size_t width) {
  const std::string_view bytes =
      Accessor(reference, {kFloat, width == 3 ? "VEC3" : "VEC4", width * kNumberBytes});
  if (bytes.size() > unread_) reference.Refuse("the index of more numbers than the file holds");
  unread_ -= bytes.size();
  return Numbers<float>(bytes);
}

std::vector<std::uint32_t> StoredNumbers::Words(const JsonField& reference,
                                                std::size_t count) const {
  const std::string_view bytes = Accessor(reference, {kUnsignedInt, "SCALAR", kNumberBytes});
  if (bytes.size() != count * kNumberBytes) {
    reference.Refuse("the index of more or fewer than " + std::to_string(count) + " numbers");
  }
  return Numbers<std::uint32_t>(bytes);
}

}  // namespace host::gltf
