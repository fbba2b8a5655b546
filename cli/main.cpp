#include <exception>
#include <iostream>

#include "cli/command_line.h"
#include "cli/common/failure.h"
#include "cli/common/messages.h"
#include "platform/terminal.h"

// The program `orvane`: a user of the host that answers the plug-in's dialogs from the command
// line.

namespace cli {
namespace {

ExitStatus Run(int argument_count, const char* const* arguments) {
  try {
    const ExitStatus status = ReadCommandLine(argument_count, arguments)();
    std::cout.flush();
    if (std::cout) return status;
    Print(Severity::kError, {"standard output", "could not be written", ""});
  } catch (const Failure& failure) {
    for (const Complaint& complaint : failure.complaints) Print(Severity::kError, complaint);
    return failure.status;
  } catch (const std::bad_alloc&) {
    Print(Severity::kError, {"", "There is not enough memory", ""});
  } catch (const std::exception& error) {
    Print(Severity::kError, {"", error.what(), ""});
  }
  return ExitStatus::kInputOutput;
}

}  // namespace
}  // namespace cli

int main(int argument_count, char** arguments) {
  const platform::Utf8Console console;
  std::ios::sync_with_stdio(false);
  return static_cast<int>(cli::Run(argument_count, arguments));
}
