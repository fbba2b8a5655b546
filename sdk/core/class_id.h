#pragma once

#include <cstdint>

// How the host identifies the classes of objects, controllers and plug-ins. Scenes and scripts
// refer to classes by these numbers, so they never change.

// What kind of thing a class is.
using SuperClassId = std::uint32_t;

// Which class it is, within its kind.
struct ClassId {
  std::uint32_t part_a = 0;
  std::uint32_t part_b = 0;

  constexpr std::uint32_t PartA() const { return part_a; }
  constexpr std::uint32_t PartB() const { return part_b; }

  friend constexpr bool operator==(const ClassId&, const ClassId&) = default;
};

inline constexpr SuperClassId kGeometricObjectSuperClass = 16;
inline constexpr SuperClassId kShapeSuperClass = 64;
inline constexpr SuperClassId kHelperSuperClass = 80;
inline constexpr SuperClassId kSceneImportSuperClass = 0xA10;
inline constexpr SuperClassId kSceneExportSuperClass = 0xA20;
inline constexpr SuperClassId kUtilitySuperClass = 0x1020;
inline constexpr SuperClassId kRotationControllerSuperClass = 0x900C;

inline constexpr ClassId kBoneClass{0x28BF6E8D, 0x2ECCA840};
inline constexpr ClassId kDummyClass{0x876234, 0};
inline constexpr ClassId kSphereClass{0x11, 0};
inline constexpr ClassId kPointHelperClass{0x2013, 0};
inline constexpr ClassId kTcbRotationClass{0x442313, 0};

// Transform controllers of the character component.
inline constexpr ClassId kCharacterTransformClasses[] = {
    {37204, 0}, {37206, 0}, {37205, 0}, {12305, 0}};
