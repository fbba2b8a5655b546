#pragma once

#include "platform/export.h"

// Colours of the host's user interface.

// Red, green and blue, each 0 to 1.
struct Color {
  float r = 0.0F;
  float g = 0.0F;
  float b = 0.0F;
};

// The index of the colour that new helpers and bones take.
inline constexpr int kNewObjectColorIndex = 23;

// The user-interface colour `index`; black for an index that the host does not know.
SKELDER_API Color GetUIColor(int index);
