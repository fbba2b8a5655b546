#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>

#include "host/gltf/file/container.h"
#include "host/gltf/file/json_field.h"

// The numbers that other programs have put into a file, where they lie: nothing is copied. The
// bytes are the file's, and outlive all of this.

namespace host::gltf {

// Elements of the same number of components each, such as the keys of a sampler. Integers that
// stand for fractions are these fractions.
class FileNumbers {
 public:
  FileNumbers() = default;

  std::size_t Size() const { return count_; }

  // REQUIRES: `element` is less than Size(), and `component` than the components of one.
  double At(std::size_t element, std::size_t component) const;

  template <std::size_t kSize>
  std::array<double, kSize> Element(std::size_t element) const {
    std::array<double, kSize> components;
    for (std::size_t i = 0; i < kSize; ++i) components[i] = At(element, i);
    return components;
  }

 private:
  friend class Accessors;

  std::string_view bytes_;
  std::size_t count_ = 0;
  std::size_t stride_ = 0;
  int component_type_ = 0;
};

// The accessors of a file.
class Accessors {
 public:
  // `file` outlives this.
  explicit Accessors(const FileParts& file);

  // The numbers of the accessor that `reference` is the index of, whose elements have that `type`.
  // Throws a Refusal when there is none, when it reaches beyond the file, or when a number is not
  // finite. Each accessor is looked through once; those of a file that tells of the same bytes
  // again and again are refused.
  FileNumbers Find(const JsonField& reference, std::string_view type);

 private:
  FileNumbers Look(const JsonField& accessor, std::string_view type);
  void RequireFinite(const FileNumbers& numbers, std::size_t width, const JsonField& accessor);

  const FileParts& file_;
  std::size_t most_numbers_;  // to be looked through
  struct Known {
    std::string_view type;
    FileNumbers numbers;
  };
  std::map<std::size_t, Known> known_;  // by their indices
};

}  // namespace host::gltf
