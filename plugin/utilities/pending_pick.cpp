#include "plugin/utilities/pending_pick.h"

#include <utility>

namespace orvane {

PendingPick::PendingPick(Interface& interface, PickControlNode& pick)
    : interface_(&interface), pick_(pick) {
  interface.RegisterExitSkelderCallback(&exit_);
  pick_.Prepare(interface);
  interface.SetPickMode(&pick_);
}

void PendingPick::End() {
  Interface* const interface = std::exchange(interface_, nullptr);
  if (interface == nullptr) return;
  interface->ClearPickMode();
  interface->UnRegisterExitSkelderCallback(&exit_);
}

}  // namespace orvane
