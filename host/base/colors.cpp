#include "sdk/gfx/color.h"

namespace {

// A warm grey that stands out from a dark and from a light background.
constexpr Color kNewObjectColor{0.8F, 0.7F, 0.5F};

}  // namespace

Color GetUIColor(int index) { return index == kNewObjectColorIndex ? kNewObjectColor : Color{}; }
