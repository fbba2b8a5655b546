#pragma once

#include "platform/export.h"
#include "sdk/core/types.h"

// The host's animation modes and its clock. Called by plug-ins on the user-interface thread.

// Animate mode: while it is on, setting a controller's value makes a key. Suspending switches it
// off and remembers its state; suspensions nest, and each resume restores the state that its
// suspension remembered. AnimateOn and AnimateOff set the present state at any time.
SKELDER_API void SuspendAnimate();
SKELDER_API void ResumeAnimate();
SKELDER_API void AnimateOn();
SKELDER_API void AnimateOff();

// Set-key mode, suspended and resumed likewise.
SKELDER_API void SuspendSetKeyMode();
SKELDER_API void ResumeSetKeyMode();

// Ticks in one frame: kTicksPerSecond / frame rate in whole numbers, 1 to 4800.
SKELDER_API int GetTicksPerFrame();

// Sets the frame rate in frames per second; a rate outside 1 to 4800 is held to those bounds. Keys
// keep their ticks.
SKELDER_API void SetFrameRate(int frames_per_second);
