#pragma once

#include <cstddef>

// Memory that runs out, and that is counted. A test program that links this has its `operator new`
// replaced, so it is one of its own. For one thread.
namespace test {

// Lets the allocation behind `count` others fail with std::bad_alloc, once.
void FailAllocationAfter(int count);
// Ends that. Returns whether an allocation has failed.
bool StopFailingAllocations();

// The most bytes that were taken at once since the last call, beyond those that were taken then.
std::size_t TakePeakOfBytes();

}  // namespace test
