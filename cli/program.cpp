#include "cli/program.h"

#include <exception>
#include <iostream>
#include <new>

#include "cli/command_line.h"
#include "cli/common/messages.h"

namespace cli {

ExitStatus RunProgram(int argument_count, const char* const* arguments) {
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

}  // namespace cli
