#pragma once

#include <nanobind/nanobind.h>
#include <nanobind/ndarray.h>

#include "python/binding/frame_array.h"

// Views of what lies in a take's memory: read-only, and its owner lives as long as they do.

namespace binding {

using ScalarView = nanobind::ndarray<nanobind::numpy, const double, nanobind::ndim<2>>;
using VectorView = nanobind::ndarray<nanobind::numpy, const double, nanobind::ndim<3>>;

// Of each row of `array` the number at `place`: (frames, names).
[[nodiscard]] inline ScalarView ViewScalars(const FrameArray& array, std::size_t place,
                                            nanobind::handle owner) {
  return ScalarView(array.Values() + place, {array.Frames(), array.Names()}, owner,
                    {array.FrameStride(), array.NameStride()});
}

// Of each row of `array` the three numbers from `place` on: (frames, names, 3).
[[nodiscard]] inline VectorView ViewVectors(const FrameArray& array, std::size_t place,
                                            nanobind::handle owner) {
  return VectorView(array.Values() + place, {array.Frames(), array.Names(), 3}, owner,
                    {array.FrameStride(), array.NameStride(), 1});
}

}  // namespace binding
