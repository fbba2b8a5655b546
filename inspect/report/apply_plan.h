#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"

// Which nodes of a scene a file's motion goes to when it is applied: the plug-in's own rules, by
// names alone, so that it can be told before anything is keyed. Nothing fails but for want of
// memory.

namespace orvane {

inline constexpr std::size_t kNoParent = static_cast<std::size_t>(-1);

// How a bone stands when nothing moves: in the space of its parent, in the axes of motion files.
struct BasePose {
  Vector3 translation;  // in millimeters
  RotationMatrix3 rotation;
};

struct BoneShape {
  double length = 0.0;           // in millimeters
  std::optional<BasePose> base;  // nothing for a bone that no import has made
};

// A segment or a marker of a file, or a node of a scene.
struct ApplyItem {
  std::string name;
  std::size_t parent = kNoParent;    // index of the one that it hangs from
  std::optional<BoneShape> shape{};  // of segments, and of those nodes that are bones
};

struct AppliedFile {
  std::vector<ApplyItem> items;  // in the order of the file
  std::size_t root = kNoParent;  // index of the first root, of a motion file
};

struct ApplyScene {
  std::vector<ApplyItem> nodes;       // children in their order
  std::vector<std::size_t> selected;  // indices, in the order of selection
};

// An item of the file, and the node that is keyed with it.
struct ApplyPair {
  std::size_t item = 0;
  std::size_t node = 0;
};

struct ApplyPlan {
  // Without a start nothing is applied.
  enum class Start {
    kFound,
    kNothingSelected,
    kNameUnknown,  // the selected bone is none of the file's
  };

  Start start = Start::kFound;
  std::vector<ApplyPair> pairs;        // the first by what is selected, the others by names
  std::vector<std::size_t> file_only;  // items whose names no node has where it would count
  // Of a motion file, where the first pair is not its root: items that do not hang from that.
  std::vector<std::size_t> not_below_start;
  std::vector<std::size_t> scene_only;  // nodes that could be keyed, of names that the file has not
};

// Segments go to bones: from the bone that is selected first, or the first below what is, each to
// the bone of its name below the bone of its parent. Effectors, which motion files have not, are
// not missed.
[[nodiscard]] ApplyPlan PlanMotion(const AppliedFile& file, const ApplyScene& scene);

// Markers go to the nodes of their names among those that are selected and their children. Groups
// are not missed.
[[nodiscard]] ApplyPlan PlanMarkers(const AppliedFile& file, const ApplyScene& scene);

}  // namespace orvane
