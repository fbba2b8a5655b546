#pragma once

#include "sdk/core/interface.h"

// The state in which a file class wants the host while it works.
namespace orvane {

// Suspends animate and set-key mode, switches animate mode off, and stops the playback of
// `interface` if it runs.
void SuspendHostModes(Interface& interface);

// Takes the two suspensions back. Playback stays stopped.
void ResumeHostModes();

// The host's progress bar for the time of one import or export.
class OpenProgressBar {
 public:
  // Opens a visible bar titled `title`; `interface` must outlive this object.
  OpenProgressBar(Interface& interface, const char* title);
  OpenProgressBar(const OpenProgressBar&) = delete;
  OpenProgressBar& operator=(const OpenProgressBar&) = delete;
  // Closes the bar, however the work ended.
  ~OpenProgressBar();

 private:
  Interface& interface_;
};

}  // namespace orvane
