#include "host/application/plugin_callbacks.h"

#include <algorithm>
#include <utility>

namespace host {

void PluginCallbacks::SetPickMode(PickModeCallback* callback) {
  PickModeCallback* const left = std::exchange(pick_mode_, nullptr);
  if (left != nullptr) left->ExitMode();
  if (callback == nullptr || pick_modes_refused_) return;
  pick_mode_ = callback;
  callback->EnterMode();
}

void PluginCallbacks::RegisterExit(ExitSkelderCallback* callback) {
  if (callback != nullptr) exit_callbacks_.push_back(callback);
}

void PluginCallbacks::UnregisterExit(ExitSkelderCallback* callback) {
  const auto registered = std::find(exit_callbacks_.begin(), exit_callbacks_.end(), callback);
  if (registered == exit_callbacks_.end()) {
    misuse_.Report("UnRegisterExitSkelderCallback of a callback that is not registered");
    return;
  }
  exit_callbacks_.erase(registered);
}

void PluginCallbacks::TellExit(HWND window) {
  const std::vector<ExitSkelderCallback*> registered = exit_callbacks_;
  for (ExitSkelderCallback* const callback : registered) {
    const bool still = std::find(exit_callbacks_.begin(), exit_callbacks_.end(), callback) !=
                       exit_callbacks_.end();
    if (still) callback->HostExiting(window);
  }
}

}  // namespace host
