#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "host/gltf/file/json_field.h"
#include "sdk/core/class_id.h"
#include "sdk/geom/point3.h"
#include "sdk/geom/quat.h"

// The small values in the record of a kept scene. Throw a Refusal when they are something else.

namespace host::gltf {

template <std::size_t kSize>
std::array<float, kSize> FloatsIn(const JsonField& field) {
  if (field.Size() != kSize) field.Refuse("no list of " + std::to_string(kSize) + " numbers");
  std::array<float, kSize> numbers;
  for (std::size_t i = 0; i < kSize; ++i) numbers[i] = field.Element(i).Float();
  return numbers;
}

inline std::array<float, 3> Components(const Point3& point) { return {point.x, point.y, point.z}; }

inline std::array<float, 4> Components(const Quat& rotation) {
  return {rotation.x, rotation.y, rotation.z, rotation.w};
}

// The value of the components that `numbers` begins with.
inline void Compose(const float* numbers, Point3& point) {
  point = {numbers[0], numbers[1], numbers[2]};
}

inline void Compose(const float* numbers, Quat& rotation) {
  rotation = {numbers[0], numbers[1], numbers[2], numbers[3]};
}

inline ClassId ClassIn(const JsonField& parts) {
  if (parts.Size() != 2) parts.Refuse("no pair of numbers");
  return {parts.Element(0).Word(), parts.Element(1).Word()};
}

}  // namespace host::gltf
