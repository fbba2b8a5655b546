#pragma once

// The user's wish to stop, where no signal brings it.

namespace platform {

// From now on Interrupted() is true, until ReleaseInterrupts.
void RequestInterrupt();

}  // namespace platform
