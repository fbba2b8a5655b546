#include "host/application/plugin_callbacks.h"

#include <algorithm>

namespace host {

void PluginCallbacks::SetPickMode(PickModeCallback* callback) {
  if (pick_mode_ != nullptr) pick_mode_->ExitMode();
  pick_mode_ = callback;
  if (pick_mode_ != nullptr) pick_mode_->EnterMode();
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

}  // namespace host
