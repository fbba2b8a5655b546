#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/interrupt.h"

// What a verb is to the program: work that ends with a status. How it gives up: it throws a
// Failure, and the program prints that and ends with its status.

namespace cli {

// What the program tells its caller by its exit status. docs/command-line.md documents it.
enum class ExitStatus : int {
  kDone = 0,
  kRefused = 1,                                 // by the file's contents or by the plug-in
  kDifferent = kRefused,                        // what was compared, in place of a refusal
  kWrongUsage = 2,                              // the arguments
  kInputOutput = 3,                             // something could not be read or written
  kInterrupted = platform::kInterruptedStatus,  // by the user; nothing is left behind
};

// One thing to say to the user on standard error.
struct Complaint {
  std::string subject;  // what it is about: a file or a flag; empty for the program itself
  std::string text;     // a message of the plug-in stands as it is
  std::string advice;   // what can be done about it; may be empty
};

struct Failure {
  ExitStatus status = ExitStatus::kRefused;
  std::vector<Complaint> complaints;
};

// What the arguments ask for, ready to run. It may throw a Failure.
using Work = std::function<ExitStatus()>;

// Throws a Failure that says so if the user has interrupted the program.
void StopIfInterrupted();

}  // namespace cli
