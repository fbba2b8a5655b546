#pragma once

#include "plugin/utilities/pick_control_node.h"
#include "sdk/core/callbacks.h"
#include "sdk/core/interface.h"

// One pick while it waits for the user: the host's pick mode is on, and the host tells when it
// exits.
namespace orvane {

class PendingPick {
 public:
  // Both outlive this object; `interface` need not once the pick has ended.
  PendingPick(Interface& interface, PickControlNode& pick) : interface_(interface), pick_(pick) {}
  PendingPick(const PendingPick&) = delete;
  PendingPick& operator=(const PendingPick&) = delete;
  ~PendingPick() { End(); }

  // Begins to wait. What the host throws ends it.
  void Begin();

  // Whether the user may still pick something.
  bool IsWaiting() const { return pick_.IsActive() && !exit_.HostIsExiting(); }

  bool HostIsExiting() const { return exit_.HostIsExiting(); }

  // Leaves the pick mode and lets go of the host, even in the middle of Begin; the second time
  // nothing happens.
  void End() noexcept;

 private:
  class ExitSkelderCallback final : public ::ExitSkelderCallback {
   public:
    void HostExiting(HWND /*window*/) override { exiting_ = true; }

    bool HostIsExiting() const { return exiting_; }

   private:
    bool exiting_ = false;
  };

  Interface& interface_;
  PickControlNode& pick_;
  ExitSkelderCallback exit_;
  bool is_registered_ = false;
  bool is_entered_ = false;
};

}  // namespace orvane
