#include "plugin/utilities/pending_pick.h"

#include <utility>

#include "plugin/exchange/attempt.h"

namespace orvane {

void PendingPick::Begin() {
  Enter(is_registered_, [this] { interface_.RegisterExitSkelderCallback(&exit_); });
  if (!is_registered_) return;
  pick_.Prepare(interface_);
  Enter(is_entered_, [this] { interface_.SetPickMode(&pick_); });
}

void PendingPick::End() noexcept {
  if (std::exchange(is_entered_, false)) Attempt([this] { interface_.ClearPickMode(); });
  if (std::exchange(is_registered_, false)) {
    Attempt([this] { interface_.UnRegisterExitSkelderCallback(&exit_); });
  }
}

}  // namespace orvane
