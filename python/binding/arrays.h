#pragma once

#include <nanobind/nanobind.h>
#include <nanobind/ndarray.h>

#include <cstddef>
#include <cstdint>

// Views of what lies in a take's memory: read-only, and its owner lives as long as they do.

namespace binding {

using ScalarView = nanobind::ndarray<nanobind::numpy, const double, nanobind::ndim<2>>;
using VectorView = nanobind::ndarray<nanobind::numpy, const double, nanobind::ndim<3>>;

// How many there are, and from one to the next, in numbers.
struct Extent {
  std::size_t count = 0;
  std::size_t stride = 0;

  [[nodiscard]] std::int64_t Stride() const { return static_cast<std::int64_t>(stride); }
};

// Where `offset` numbers stand in front; null of nothing.
[[nodiscard]] inline const double* At(const double* numbers, std::size_t offset) {
  return numbers == nullptr ? nullptr : numbers + offset;
}

// (frames, names)
[[nodiscard]] inline ScalarView ViewScalars(const double* first, const Extent& frames,
                                            const Extent& names, nanobind::handle owner) {
  return ScalarView(first, {frames.count, names.count}, owner, {frames.Stride(), names.Stride()});
}

// (frames, names, 3)
[[nodiscard]] inline VectorView ViewVectors(const double* first, const Extent& frames,
                                            const Extent& names, nanobind::handle owner) {
  return VectorView(first, {frames.count, names.count, 3}, owner,
                    {frames.Stride(), names.Stride(), 1});
}

}  // namespace binding
