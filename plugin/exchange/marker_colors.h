#pragma once

#include "sdk/core/types.h"

// The colors by which a person tells markers apart.
namespace orvane {

inline constexpr WireColor kMarkerColor = PackWireColor(204, 51, 51);

// Of a marker that a mapping that is being made has already.
inline constexpr WireColor kPickedMarkerColor = PackWireColor(25, 25, 204);

}  // namespace orvane
