#pragma once

// The end of a program whose dialog waits for somebody who is not there. It belongs to the thread.

namespace host {

// From now on, to the end of the process, no dialog of this thread stays open for long without
// anybody answering it: after half a minute (or as many seconds as the environment variable
// SKELDER_WATCHDOG_SECONDS says) the dialog's title and texts go to standard error, and the process
// ends with kWatchdogStatus. May be called any number of times, by one thread.
void WatchWindows();

inline constexpr int kWatchdogStatus = 124;

}  // namespace host
