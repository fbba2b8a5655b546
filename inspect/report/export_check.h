#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "inspect/check/checked_file.h"

// What a motion file cannot hold of the skeleton that is exported to it, before it is lost: by the
// exporter's own rules. The findings have no place in a file. Nothing fails but for want of memory.

namespace orvane {

// A node of the skeleton, or one that hangs from it.
struct ExportNode {
  std::string name;
  std::size_t parent = 0;  // index of the one that it hangs from; its own of the root
  bool is_bone = true;
  bool scale_changes = false;  // over time
  bool is_uneven = false;      // it is scaled, and not alike along its axes
  bool is_sheared = false;     // its axes are not at right angles, in some frame
};

// The frames of an export, by the numbers of the scene, both ends included.
struct ExportFrames {
  std::int64_t first = 0;
  std::int64_t last = 0;
  // From the first to the last key of what moves the skeleton; nothing when it stands still.
  std::optional<std::pair<std::int64_t, std::int64_t>> keyed{};
};

// The findings of the codes "export-..." of `nodes`, the root first and each node before its
// children; none of them for a scene in which no skeleton is selected. `name` is what their scene
// is known as. `frames`: nothing when none are exported.
[[nodiscard]] CheckedFile CheckExport(const std::string& name, const std::vector<ExportNode>& nodes,
                                      const std::optional<ExportFrames>& frames = {});

}  // namespace orvane
