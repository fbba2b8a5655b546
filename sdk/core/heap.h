#pragma once

#include <cstddef>
#include <new>

#include "platform/export.h"

// The host's heap. An object that one side creates and the other may destroy lives here, because on
// Windows every module has a heap of its own.

// Returns `size` bytes, aligned for any type, or null when the heap is exhausted.
SKELDER_API void* SkelderAllocate(std::size_t size) noexcept;

// Gives back what SkelderAllocate returned. Null is allowed.
SKELDER_API void SkelderFree(void* memory) noexcept;

// Base of every class whose objects are handed to the host: their memory comes from its heap.
class SkelderHeapOperators {
 public:
  // Throws std::bad_alloc when the heap is exhausted. Objects that the host asks for are made with
  // the non-throwing form.
  static void* operator new(std::size_t size) {
    void* memory = SkelderAllocate(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
  }
  static void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return SkelderAllocate(size);
  }
  static void operator delete(void* memory) noexcept { SkelderFree(memory); }
  static void operator delete(void* memory, const std::nothrow_t&) noexcept { SkelderFree(memory); }
};
