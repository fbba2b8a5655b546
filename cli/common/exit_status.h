#pragma once

#include "platform/interrupt.h"

// What the program tells its caller by its exit status. docs/command-line.md documents it.

namespace cli {

enum class ExitStatus : int {
  kDone = 0,
  kRefused = 1,                                 // by the file's contents or by the plug-in
  kDifferent = kRefused,                        // what was compared, in place of a refusal
  kWrongUsage = 2,                              // the arguments
  kInputOutput = 3,                             // something could not be read or written
  kInterrupted = platform::kInterruptedStatus,  // by the user; nothing is left behind
};

}  // namespace cli
