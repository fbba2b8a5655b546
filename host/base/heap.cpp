#include "sdk/core/heap.h"

#include <atomic>
#include <cstdlib>

#include "host/base/heap_control.h"

namespace {

std::atomic<std::size_t> live_allocations = 0;
std::atomic<std::size_t> allocations_until_refusal = 0;

// Counts down to the allocation to refuse; stays at 0 when none is.
bool IsRefused() {
  std::size_t left = allocations_until_refusal.load();
  while (left > 0) {
    if (allocations_until_refusal.compare_exchange_weak(left, left - 1)) return left == 1;
  }
  return false;
}

}  // namespace

void* SkelderAllocate(std::size_t size) noexcept {
  if (IsRefused()) return nullptr;
  void* memory = std::malloc(size > 0 ? size : 1);
  if (memory != nullptr) ++live_allocations;
  return memory;
}

void SkelderFree(void* memory) noexcept {
  if (memory == nullptr) return;
  --live_allocations;
  std::free(memory);
}

namespace host {

std::size_t LiveAllocations() { return live_allocations.load(); }

void RefuseAllocation(std::size_t n) { allocations_until_refusal.store(n); }

}  // namespace host
