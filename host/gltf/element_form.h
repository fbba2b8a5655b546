#pragma once

#include <cstddef>

// The forms that the elements of an accessor have in our files, for who writes and who reads them.

namespace host::gltf {

struct ElementForm {
  const char* type;
  int component_type;
  std::size_t bytes;  // of an element
};

inline constexpr ElementForm kJointsForm{"VEC4", 5123, 8};
inline constexpr ElementForm kWordForm{"SCALAR", 5125, 4};
inline constexpr ElementForm kNumberForm{"SCALAR", 5126, 4};
inline constexpr ElementForm kThreeNumbersForm{"VEC3", 5126, 12};
inline constexpr ElementForm kFourNumbersForm{"VEC4", 5126, 16};
inline constexpr ElementForm kMatrixForm{"MAT4", 5126, 64};

}  // namespace host::gltf
