#pragma once

#include "plugin/utilities/exit_skelder_callback.h"
#include "plugin/utilities/pick_control_node.h"
#include "sdk/core/interface.h"

// One pick while it waits for the user: the host's pick mode is on, and the host tells when it
// exits.
namespace orvane {

class PendingPick {
 public:
  // Both outlive this object; `interface` need not once the pick has ended.
  PendingPick(Interface& interface, PickControlNode& pick);
  PendingPick(const PendingPick&) = delete;
  PendingPick& operator=(const PendingPick&) = delete;
  ~PendingPick() { End(); }

  // Whether the user may still pick something.
  bool IsWaiting() const { return pick_.IsActive() && !exit_.HostIsExiting(); }

  bool HostIsExiting() const { return exit_.HostIsExiting(); }

  // Leaves the pick mode and lets go of the host; the second time nothing happens.
  void End();

 private:
  Interface* interface_;
  PickControlNode& pick_;
  ExitSkelderCallback exit_;
};

}  // namespace orvane
