#pragma once

#include <string>
#include <vector>

#include "cli/common/exit_status.h"

// How a verb gives up: it throws a Failure, and the program prints it and ends with its status.

namespace cli {

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

}  // namespace cli
