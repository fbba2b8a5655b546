#pragma once

#include <array>
#include <cstddef>
#include <string_view>

// What is done with a file. The same finding may be of no account to one action and spoil what
// comes out of another.

namespace orvane {

enum class Action {
  kInspect,  // it is looked at: what its reader makes of it is shown, or compared
  kImport,   // new nodes are made of it in a scene
  kApply,    // nodes that are in a scene are keyed with it
  kConvert,  // a marker file becomes a BVK file
  kExport,   // a skeleton of a scene becomes a motion file
};
inline constexpr std::size_t kActions = 5;

// All of them, in their order.
inline constexpr std::array<Action, kActions> kAllActions = {
    Action::kInspect, Action::kImport, Action::kApply, Action::kConvert, Action::kExport};

// "inspect", "import", "apply", "convert" or "export".
constexpr std::string_view NameOf(Action action) {
  constexpr std::array<std::string_view, kActions> kNames = {"inspect", "import", "apply",
                                                             "convert", "export"};
  return kNames[static_cast<std::size_t>(action)];
}

}  // namespace orvane
