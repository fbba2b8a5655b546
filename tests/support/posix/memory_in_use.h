#pragma once

#include <malloc.h>

#include <cstddef>
#include <memory>

namespace test {

// The bytes that the program has allocated; always the same where a sanitizer allocates them.
inline std::size_t MemoryInUse() {
  const struct mallinfo2 memory = mallinfo2();
  return memory.uordblks + memory.hblkhd;
}

// How many bytes `object` has held until now, where it is destroyed.
template <typename Object>
std::size_t MemoryHeldBy(std::unique_ptr<Object> object) {
  const std::size_t before = MemoryInUse();
  object.reset();
  return before - MemoryInUse();
}

}  // namespace test
