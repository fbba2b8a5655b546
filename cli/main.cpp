#include <iostream>

#include "cli/program.h"
#include "platform/terminal.h"

// The program `orvane`: a user of the host that answers the plug-in's dialogs from the command
// line.

int main(int argument_count, char** arguments) {
  const platform::Utf8Console console;
  std::ios::sync_with_stdio(false);
  return static_cast<int>(cli::RunProgram(argument_count, arguments));
}
