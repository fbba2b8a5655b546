#pragma once

#include "sdk/core/callbacks.h"

// Learns that the host exits while the mapping creator waits for a pick.
namespace orvane {

class ExitSkelderCallback final : public ::ExitSkelderCallback {
 public:
  void HostExiting(HWND /*window*/) override { exiting_ = true; }

  bool HostIsExiting() const { return exiting_; }

 private:
  bool exiting_ = false;
};

}  // namespace orvane
