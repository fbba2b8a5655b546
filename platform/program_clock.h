#pragma once

#include <cstdint>

#include "platform/export.h"

// A clock that a program puts in place of the system's.

// The moment at which that clock stands, in seconds since the beginning of 1970 in UTC, or null
// when there is none. Provided by the host library, the one place of this state; by a name that can
// be looked up at run time, because another host has no such clock.
extern "C" SKELDER_API const std::int64_t* SkelderStoppedClock();
