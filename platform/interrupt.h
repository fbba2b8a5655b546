#pragma once

// The user's wish to stop a running program: Ctrl-C, or what the system sends in its place.

namespace platform {

// The exit status of a program that the user has stopped.
inline constexpr int kInterruptedStatus = 130;

// From now on such a wish does not end the process but is remembered; only a second one ends it, at
// once and with kInterruptedStatus. A wish that the process was started to ignore stays ignored.
void CatchInterrupts();

// From now on a second wish does not end the process either, because it holds something that it has
// to put away.
void HoldInterrupts();

// What is done with such a wish is again what was done before CatchInterrupts, and those that have
// come since are forgotten: for a process in which other work goes on.
void ReleaseInterrupts();

// Whether the user has asked to stop since CatchInterrupts.
[[nodiscard]] bool Interrupted();

}  // namespace platform
