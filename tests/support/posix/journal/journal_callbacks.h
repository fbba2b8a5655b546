#pragma once

#include <memory>
#include <unordered_map>

#include "sdk/core/callbacks.h"
#include "tests/support/posix/journal/journal_scene.h"

namespace test {

// How a host sees the callbacks of a plug-in while a journal is kept: for each there is one that
// notes what the host tells it, and hands it the nodes that the plug-in knows.
class JournalCallbacks {
 public:
  // `scene` outlives this object.
  explicit JournalCallbacks(JournalScene& scene);
  JournalCallbacks(const JournalCallbacks&) = delete;
  JournalCallbacks& operator=(const JournalCallbacks&) = delete;
  ~JournalCallbacks();

  // What the host gets for what the plug-in has: always the same, and null for null.
  PickModeCallback* Shown(PickModeCallback* own);
  PickNodeCallback* Shown(PickNodeCallback* own);
  ExitSkelderCallback* Shown(ExitSkelderCallback* own);

 private:
  class Viewport;
  class PickMode;
  class PickNode;
  class Exit;

  JournalScene& scene_;
  std::unordered_map<PickModeCallback*, std::unique_ptr<PickMode>> pick_modes_;
  std::unordered_map<PickNodeCallback*, std::unique_ptr<PickNode>> pick_nodes_;
  std::unordered_map<ExitSkelderCallback*, std::unique_ptr<Exit>> exits_;
};

}  // namespace test
