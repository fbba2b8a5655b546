#pragma once

#include <cstddef>
#include <cstdint>

// The one function of every fuzz target, under the name and with the result (0) that libFuzzer
// wants: takes `size` bytes that may be anything, and ends the process when what comes of them is
// wrong.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
