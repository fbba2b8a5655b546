#pragma once

#include <cstddef>

// Each system has a body.

namespace platform {

// Tells the system that the process is about to work with some `bytes` of memory, and to free and
// ask for them more than once: where it can, it keeps them meanwhile, and gives them in large pages
// when they are first written to. No memory is taken for that, and nothing fails.
void ExpectMemory(std::size_t bytes);

}  // namespace platform
