#pragma once

#include <ios>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>

#include "cli/common/failure.h"

// A look at what the plug-in has written, before it gets its place. What comes in between is no
// fault of the plug-in's, of the scene or of the disk's size, and is told as what it is.

namespace cli {

// That what was written for the file `name` could not be looked at, and why.
Failure NotReadBack(const std::string& name, const std::string& reason);
Failure NotReadBackForMemory(const std::string& name);

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
std::string BytesWritten(const std::string& path);

}  // namespace cli
