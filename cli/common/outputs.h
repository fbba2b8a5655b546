#pragma once

#include <ios>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "cli/common/failure.h"
#include "platform/output_file.h"

// The files that verbs make: their places, and the look at what the plug-in has written before it
// gets its place. What comes in between is no fault of the plug-in's, of the scene or of the disk's
// size, and is told as what it is.

namespace cli {

// What is said of an output that would take the place of what is read: --force is for what an
// earlier run has made.
[[nodiscard]] Complaint ReplacesInput(const std::string& output);

// Throws a Failure for wrong usage when the file to make, `output`, is one of `inputs`, however
// their paths are spelled.
void RequireNoInput(const std::string& output, const std::vector<std::string>& inputs);

// What to tell of the output `path`, which `file` makes, when it does not come about for `reason`.
[[nodiscard]] Complaint ComplainAboutOutput(const std::string& path,
                                            const platform::OutputFile& file,
                                            const std::string& reason);

// That what was written for the file `name` could not be looked at, and why.
[[nodiscard]] Failure NotReadBack(const std::string& name, const std::string& reason);
[[nodiscard]] Failure NotReadBackForMemory(const std::string& name);

// Returns what `read` does, which reads the file that the user knows as `name`. Throws a Failure in
// place of what `read` throws when it runs out of memory or meets an error of the system's.
template <typename Read>
auto ReadBack(const std::string& name, const Read& read) {
  try {
    return read();
  } catch (const std::bad_alloc&) {
    throw NotReadBackForMemory(name);
  } catch (const std::length_error&) {
    throw NotReadBackForMemory(name);
  } catch (const std::system_error& error) {
    throw NotReadBack(name, error.code().message());
  }
}

// All bytes of the file `path`; none when it is not there. Throws as `read` does above.
[[nodiscard]] std::string BytesWritten(const std::string& path);

}  // namespace cli
