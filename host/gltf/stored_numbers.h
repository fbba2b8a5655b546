#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "host/gltf/file_parts.h"
#include "host/gltf/json_field.h"

namespace host::gltf {

// The numbers of a file, by the fields that refer to them. Everything throws a Refusal when a field
// refers to nothing, to numbers of another kind, or to more than the file holds.
class StoredNumbers {
 public:
  // `file` outlives this.
  explicit StoredNumbers(const FileParts& file) : file_(file), unread_(file.binary.size()) {}

  // The bytes of the view that `reference` is the index of.
  std::string_view View(const JsonField& reference) const;

  // The numbers of the accessor that `reference` is the index of, `width` (3 or 4) in each element.
  // All of them together are no more than the file holds: to refer to the same numbers again and
  // again is refused.
  std::vector<float> Floats(const JsonField& reference, std::size_t width);

  // The same of `count` whole numbers of 32 bits, which may be referred to more than once.
  std::vector<std::uint32_t> Words(const JsonField& reference, std::size_t count) const;

 private:
  struct Form {
    int component_type;
    const char* type;
    std::size_t element_bytes;
  };

  // The bytes of an accessor of that form.
  std::string_view Accessor(const JsonField& reference, const Form& form) const;

  const FileParts& file_;
  std::size_t unread_;
};

}  // namespace host::gltf
