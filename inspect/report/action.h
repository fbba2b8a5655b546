#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// What is done with a file. The same finding may be of no account to one action and spoil what
// comes out of another. Nothing fails; names that are returned live as long as the program. May be
// called from any thread.

namespace orvane {

enum class Action {
  kInspect,  // it is looked at: what its reader makes of it is shown, or compared
  kImport,   // new nodes are made of it in a scene
  kApply,    // nodes that are in a scene are keyed with it
  kConvert,  // a marker file becomes a BVK file
  kExport,   // a skeleton of a scene becomes a motion file
  kRewrite,  // a motion or marker file becomes another file
};
inline constexpr std::size_t kActions = 6;

// All of them, in their order.
inline constexpr std::array<Action, kActions> kAllActions = {Action::kInspect, Action::kImport,
                                                             Action::kApply,   Action::kConvert,
                                                             Action::kExport,  Action::kRewrite};

// "inspect", "import", "apply", "convert", "export" or "rewrite".
constexpr std::string_view NameOf(Action action) {
  constexpr std::array<std::string_view, kActions> kNames = {"inspect", "import", "apply",
                                                             "convert", "export", "rewrite"};
  return kNames[static_cast<std::size_t>(action)];
}

// The other way round; nothing for any other name.
constexpr std::optional<Action> ActionOf(std::string_view name) {
  for (const Action action : kAllActions) {
    if (NameOf(action) == name) return action;
  }
  return std::nullopt;
}

// Whether frames come out of it as the header announces them, and none that stand behind.
constexpr bool TakesAnnouncedFrames(Action action) {
  return action == Action::kImport || action == Action::kApply || action == Action::kConvert;
}

// What reports call the file that is exported from.
inline constexpr std::string_view kSceneKind = "scene";

// Whether it is done with files of `kind`: "HTR", "TRC", "MNM" or that of scenes. A mapping is
// looked at, and used for converting.
constexpr bool Takes(Action action, std::string_view kind) {
  if (action == Action::kInspect) return true;
  if (action == Action::kExport || kind == kSceneKind) {
    return action == Action::kExport && kind == kSceneKind;
  }
  return action == Action::kConvert ? kind != "HTR" : kind != "MNM";
}

}  // namespace orvane
