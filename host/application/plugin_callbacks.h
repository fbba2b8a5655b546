#pragma once

#include <cstddef>
#include <vector>

#include "host/base/misuse_log.h"
#include "platform/export.h"
#include "sdk/core/callbacks.h"

// The callbacks that plug-ins have registered with the application: the one pick mode and the exit
// callbacks. They stay the plug-ins'. Nothing is picked here (host/application/picking.h does
// that).

namespace host {

class SKELDER_API PluginCallbacks {
 public:
  // Withdrawing what is not registered is noted in `misuse`, which must outlive this object.
  explicit PluginCallbacks(MisuseLog& misuse) : misuse_(misuse) {}

  PluginCallbacks(const PluginCallbacks&) = delete;
  PluginCallbacks& operator=(const PluginCallbacks&) = delete;

  // Leaves the pick mode in use, if any, then enters that of `callback`; null enters none. Each
  // callback is told. A refused mode is not entered.
  void SetPickMode(PickModeCallback* callback);

  // From now on no pick mode can be entered, as if the application were busy otherwise.
  void RefusePickModes() { pick_modes_refused_ = true; }

  // The callback of the pick mode in use, or null.
  PickModeCallback* PickMode() const { return pick_mode_; }

  // A callback is kept once for each time it was registered; null is not kept.
  void RegisterExit(ExitSkelderCallback* callback);

  // Takes the earliest registration of `callback` away.
  void UnregisterExit(ExitSkelderCallback* callback);

  // Tells all exit callbacks that the application with the main window `window` exits. One that
  // another one unregisters meanwhile is left out.
  void TellExit(HWND window);

  // In the order of their registration.
  const std::vector<ExitSkelderCallback*>& ExitCallbacks() const { return exit_callbacks_; }

 private:
  MisuseLog& misuse_;
  PickModeCallback* pick_mode_ = nullptr;
  bool pick_modes_refused_ = false;
  std::vector<ExitSkelderCallback*> exit_callbacks_;
};

}  // namespace host
