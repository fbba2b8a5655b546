#pragma once

#include "plugin/exchange/attempt.h"
#include "sdk/core/interface.h"

// The host's progress bar for the time of one import or export.
namespace orvane {

class ProgressBar {
 public:
  // Opens a visible bar titled `title`; `interface` must outlive this object.
  ProgressBar(Interface& interface, const char* title) : interface_(interface) {
    interface_.ProgressStart(title, true, &GoOn, nullptr);
  }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  // Closes the bar, however the work ended.
  ~ProgressBar() {
    Attempt([this] { interface_.ProgressEnd(); });
  }

 private:
  static std::uint32_t GoOn(void* /*argument*/) { return 0; }

  Interface& interface_;
};

}  // namespace orvane
