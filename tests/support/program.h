#pragma once

#include <string>
#include <vector>

// Runs a program as a person at a shell does, and tells what came of it.

namespace test {

struct ProgramResult {
  int status = -1;     // the exit status; 128 and the signal's number when a signal ended it
  std::string output;  // what went to standard output
  std::string error;   // what went to standard error
};

// Texts are UTF-8.
struct ProgramRun {
  std::vector<std::string> command{};  // the program's path, and its arguments
  std::string folder{};                // to run in; empty: the test's own
  std::string input_file{};            // what standard input is; empty: the test's own

  // Variables set besides those of the test's environment, as "NAME=value".
  std::vector<std::string> environment{};

  // Whether standard output is told byte for byte; a text has line feeds alone on every system.
  bool writes_bytes = false;
};

// Runs the program to its end. Throws std::runtime_error when it cannot be started.
ProgramResult RunProgram(const ProgramRun& run);

}  // namespace test
