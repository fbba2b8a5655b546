#pragma once

#include <cstdint>

class ClassDesc2;

// What a plug-in module exports, by these undecorated names. The host resolves them by name after
// loading the module and knows nothing else of it.

// The host's release number in the upper 16 bits, its interface number in bits 8 to 15, the SDK's
// revision in the low byte. The host refuses a module with another interface number than its own.
inline constexpr std::uint32_t kSkelderRelease = 9000;
inline constexpr std::uint32_t kSkelderInterface = 21;
inline constexpr std::uint32_t kSkelderRevision = 0;
inline constexpr std::uint32_t kSkelderVersion =
    kSkelderRelease << 16U | kSkelderInterface << 8U | kSkelderRevision;

// The types of the entry points, for whoever resolves them.
using LibDescriptionFunction = const char* (*)();
using LibNumberClassesFunction = int (*)();
using LibClassDescFunction = ClassDesc2* (*)(int);
using LibVersionFunction = std::uint32_t (*)();
