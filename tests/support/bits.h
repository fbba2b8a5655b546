#pragma once

#include <cstring>

namespace test {

// The value of type To that has the same bits: std::bit_cast, which not every C++ library has.
template <typename To, typename From>
To BitCast(const From& from) {
  static_assert(sizeof(To) == sizeof(From));
  To to;
  std::memcpy(&to, &from, sizeof to);
  return to;
}

}  // namespace test
