#pragma once

#include "sdk/core/types.h"

// The colours that nodes are drawn in.
namespace orvane {

// The wire colour of these parts, of which the lowest 8 bits count: red | green << 8 | blue << 16.
constexpr WireColor WireColorOf(unsigned red, unsigned green, unsigned blue) {
  return (red & 0xFFU) | (green & 0xFFU) << 8U | (blue & 0xFFU) << 16U;
}

}  // namespace orvane
