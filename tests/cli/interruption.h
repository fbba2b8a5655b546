#pragma once

// The user's wishes, from within the program that they are for.

namespace test {

// As Ctrl-C does. Returns when the program has heard of it.
void AskToStop();

// As the system does when it goes down.
void AskToTerminate();

}  // namespace test
