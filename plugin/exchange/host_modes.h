#pragma once

#include "sdk/core/interface.h"

// The state in which a file class wants the host while it works.
namespace orvane {

// Suspends animate and set-key mode, switches animate mode off, and stops the playback of
// `interface` if it runs.
void SuspendHostModes(Interface& interface);

// Takes the two suspensions back. Playback stays stopped.
void ResumeHostModes();

}  // namespace orvane
