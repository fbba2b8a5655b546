#include "platform/working_memory.h"

#include <climits>
#include <cstdint>
#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#include <sys/mman.h>
#endif

namespace platform {

#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)

namespace {

constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20U;

// Beyond this the heap would give back what is free at its end.
constexpr std::size_t kMost = std::size_t{1} << 30U;

}  // namespace

// What is allocated and freed becomes the end of the heap, and what is allocated next lies there.
void ExpectMemory(std::size_t bytes) {
  if (bytes < kLargePage || bytes > kMost) return;
  mallopt(M_MMAP_THRESHOLD, INT_MAX);
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  void* const block = std::malloc(bytes);
  if (block == nullptr) return;
  const auto first = reinterpret_cast<std::uintptr_t>(block);
  const std::uintptr_t begin = (first + kLargePage - 1) / kLargePage * kLargePage;
  const std::uintptr_t end = (first + bytes) / kLargePage * kLargePage;
  if (begin < end) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
  std::free(block);
}

#else

// The heap is not asked for such things everywhere.
void ExpectMemory(std::size_t /*bytes*/) {}

#endif

}  // namespace platform
