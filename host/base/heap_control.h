#pragma once

#include <cstddef>

#include "platform/export.h"

// What tests and programs see of the host's heap (sdk/core/heap.h). The heap is the process's, so
// its counters are too; safe to use from any thread.

namespace host {

// How many allocations are alive: given out by SkelderAllocate and not freed yet.
SKELDER_API std::size_t LiveAllocations();

// Makes the `n`-th SkelderAllocate from now (1: the next one) return null; 0 takes that back.
SKELDER_API void RefuseAllocation(std::size_t n);

}  // namespace host
