#pragma once

#include "plugin/exchange/attempt.h"
#include "sdk/core/interface.h"

// The host's progress bar for the time of one import or export.
namespace orvane {

class OpenProgressBar {
 public:
  // Opens a visible bar titled `title`; `interface` must outlive this object.
  OpenProgressBar(Interface& interface, const char* title) : interface_(interface) {
    interface_.ProgressStart(title, true, &GoOn, nullptr);
  }
  OpenProgressBar(const OpenProgressBar&) = delete;
  OpenProgressBar& operator=(const OpenProgressBar&) = delete;
  // Closes the bar, however the work ended.
  ~OpenProgressBar() {
    Attempt([this] { interface_.ProgressEnd(); });
  }

 private:
  static std::uint32_t GoOn(void* /*argument*/) { return 0; }

  Interface& interface_;
};

}  // namespace orvane
