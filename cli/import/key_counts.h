#pragma once

#include <cstddef>
#include <limits>
#include <vector>

#include "cli/common/dialog_flags.h"
#include "cli/import/import_flags.h"
#include "host/scene/scene.h"

// The keys of a scene, counted.

namespace cli {

// All keys of a scene.
struct SceneKeys {
  std::size_t count = 0;
  TimeValue first = std::numeric_limits<TimeValue>::max();  // of them all, in ticks
  TimeValue last = std::numeric_limits<TimeValue>::min();
};

[[nodiscard]] SceneKeys KeysIn(const host::Scene& scene);

// Counts the keys that an import sets. What stands where it sets them, it replaces.
class SetKeys {
 public:
  // REQUIRES: `scene`, which outlives this, is as the import finds it.
  explicit SetKeys(const host::Scene& scene);

  // From now on these nodes, of those that are there, count as keyed: their positions and, when
  // `with_rotations`, how they are turned.
  void Expect(std::vector<const host::Node*> nodes, bool with_rotations);

  // How many there are when the import, by `choices`, has given keys to the frames `keyed` of the
  // file.
  [[nodiscard]] std::size_t Count(const ImportChoices& choices,
                                  const orvane::FrameSpan& keyed) const;

 private:
  const host::Scene& scene_;
  NodeHandle newest_ = 0;
  std::vector<const host::Node*> nodes_;
  bool with_rotations_ = false;
};

}  // namespace cli
