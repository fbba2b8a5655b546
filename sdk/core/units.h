#pragma once

#include "platform/export.h"

// The host's system unit: the length that the number 1 means in a scene.

inline constexpr int kUnitTypeMillimeters = 3;

// The length of one system unit, measured in units of `unit_type`: for kUnitTypeMillimeters the
// number of millimetres in one system unit. A length in millimetres divided by it is in system
// units. Returns 1 for a unit type that the host does not know.
SKELDER_API double GetMasterScale(int unit_type);
