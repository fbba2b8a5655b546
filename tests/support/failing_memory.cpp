#include "tests/support/failing_memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

namespace {

// Before each block stands its size.
constexpr std::size_t kSizeRoom = alignof(std::max_align_t);

int allocations_left = -1;  // before the one that fails; below 0 none does
bool has_failed = false;
std::size_t bytes_taken = 0;
std::size_t most_bytes_taken = 0;
std::size_t bytes_at_start = 0;

}  // namespace

void* operator new(std::size_t size) {
  if (allocations_left >= 0 && allocations_left-- == 0) {
    has_failed = true;
    throw std::bad_alloc();
  }
  void* const block = std::malloc(size + kSizeRoom);
  if (block == nullptr) throw std::bad_alloc();
  *static_cast<std::size_t*>(block) = size;
  bytes_taken += size;
  most_bytes_taken = std::max(most_bytes_taken, bytes_taken);
  return static_cast<char*>(block) + kSizeRoom;
}

void operator delete(void* memory) noexcept {
  if (memory == nullptr) return;
  char* const block = static_cast<char*>(memory) - kSizeRoom;
  bytes_taken -= *reinterpret_cast<const std::size_t*>(block);
  std::free(block);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace test {

void FailAllocationAfter(int count) {
  has_failed = false;
  allocations_left = count;
}

bool StopFailingAllocations() {
  allocations_left = -1;
  return std::exchange(has_failed, false);
}

std::size_t TakePeakOfBytes() {
  const std::size_t peak = most_bytes_taken - bytes_at_start;
  most_bytes_taken = bytes_at_start = bytes_taken;
  return peak;
}

}  // namespace test
