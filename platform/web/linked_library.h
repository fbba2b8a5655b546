#pragma once

#include <span>
#include <string>

// Libraries that are a part of the program, where nothing can be loaded while it runs.

namespace platform {

struct LinkedFunction {
  const char* name = nullptr;
  void* address = nullptr;
};

// From now on SharedLibrary::Open finds a library of these functions at `path`, to the end of the
// program: its statics are the program's. `functions` stay with the caller, for as long.
void OfferLinkedLibrary(std::string path, std::span<const LinkedFunction> functions);

}  // namespace platform
