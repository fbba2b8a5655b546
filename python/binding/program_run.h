#pragma once

#include <map>
#include <string>
#include <vector>

#include "cli/common/failure.h"

// The program's verbs within this process, for what the plug-in does.

namespace binding {

struct ProgramRun {
  cli::ExitStatus status = cli::ExitStatus::kDone;
  std::string output;                      // of standard output
  std::string error;                       // of standard error
  std::vector<cli::Complaint> complaints;  // why it gave up, if it did
};

// Does what the program does with `arguments`, which begin with a verb, and returns when that is
// done. One run waits for the other: there is one host in a process. What the user's wish to stop
// does is as before when it returns. Needs no lock of the interpreter.
[[nodiscard]] ProgramRun RunProgram(const std::vector<std::string>& arguments);

// Throws a cli::Failure when the program would not take them.
void RequireGoodArguments(const std::vector<std::string>& arguments);

// The long names of the flags of `verb`, such as "--no-animation", and whether a value goes with
// each; none of a verb that there is not.
[[nodiscard]] std::map<std::string, bool> FlagsOf(const std::string& verb);

}  // namespace binding
