#pragma once

#include <cstdint>

// The plain numbers that the host and its plug-ins exchange.

// A point in time, in ticks. May be negative.
using TimeValue = std::int32_t;

// Ticks in one second, whatever the frame rate.
inline constexpr TimeValue kTicksPerSecond = 4800;

// Identifies a node for as long as the scene lives; 0 is no node.
using NodeHandle = std::uint32_t;

// A wire colour: red | green << 8 | blue << 16, each 0 to 255.
using WireColor = std::uint32_t;

// Of each part the lowest 8 bits count.
constexpr WireColor PackWireColor(unsigned red, unsigned green, unsigned blue) {
  return (red & 0xFFU) | (green & 0xFFU) << 8U | (blue & 0xFFU) << 16U;
}

// Polled by a progress bar while it is shown; `argument` is what ProgressStart was given.
// Returns 0 to go on.
using ProgressCallback = std::uint32_t (*)(void* argument);
