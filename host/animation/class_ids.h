#pragma once

#include "sdk/core/class_id.h"

// The controllers that nodes get without anybody asking for them by class. Their numbers are the
// host's own.

namespace host {

inline constexpr SuperClassId kPositionControllerSuperClass = 0x9101;
inline constexpr SuperClassId kScaleControllerSuperClass = 0x9102;
inline constexpr SuperClassId kTransformControllerSuperClass = 0x9103;

inline constexpr ClassId kLinearPositionClass{0x6C6E7001, 0x1};
inline constexpr ClassId kLinearScaleClass{0x6C6E7001, 0x2};
inline constexpr ClassId kEulerRotationClass{0x6C6E7001, 0x3};
inline constexpr ClassId kTransformClass{0x6C6E7001, 0x4};

}  // namespace host
