#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "tests/support/program.h"

// Runs programs in circumstances, and tells things of them, that Windows does not have.

namespace test {

inline constexpr int kNotStarted = 127;

struct PosixResult : ProgramResult {
  // The most bytes that the program had in memory at once. Its first ones are this process's own,
  // so that tests that look at this hold little themselves.
  std::size_t peak_memory = 0;
};

struct PosixRun : ProgramRun {
  // A file that standard output goes to, such as /dev/full; it is then not returned.
  std::string output_file{};

  // No file of the run may grow beyond so many bytes.
  std::optional<unsigned long> largest_file{};

  // Standard error is a terminal.
  bool error_is_terminal = false;

  // Tests that run as the superuser, who may do everything, give that up for the run. The program
  // may then lie where it cannot be started: the status is kNotStarted.
  bool unprivileged = false;

  // Called with the program's process as soon as that exists. What the program writes is only read
  // afterwards.
  std::function<void(int process)> meanwhile{};
};

// Runs the program to its end. Throws std::runtime_error when it cannot be started.
PosixResult RunProgram(const PosixRun& run);

}  // namespace test
