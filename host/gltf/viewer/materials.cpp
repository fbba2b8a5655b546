#include "host/gltf/viewer/materials.h"

#include <cmath>

namespace host::gltf {

namespace {

constexpr WireColor kColorBits = 0xFFFFFF;
constexpr double kRoughness = 0.6;

// The light that a component of a colour on a screen stands for (the sRGB curve), which is what
// glTF wants.
double Linear(WireColor component) {
  const double value = component / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

nlohmann::json Dull(WireColor color) {
  return {
      {"pbrMetallicRoughness",
       {{"baseColorFactor",
         {Linear(color & 0xFFU), Linear(color >> 8U & 0xFFU), Linear(color >> 16U & 0xFFU), 1.0}},
        {"metallicFactor", 0.0},
        {"roughnessFactor", kRoughness}}}};
}

}  // namespace

int Materials::Of(WireColor color) {
  const auto [entry, added] = indices_.try_emplace(color & kColorBits, 0);
  if (added) entry->second = list_.Add(Dull(entry->first));
  return entry->second;
}

}  // namespace host::gltf
