#pragma once

// How a verb ends that the user has interrupted.

namespace cli {

// Throws a Failure that says so if the user has interrupted the program.
void StopIfInterrupted();

}  // namespace cli
