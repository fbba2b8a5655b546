#pragma once

#include <string>

#include "formats/htr/document.h"

// What holds for any motion document, whatever was read into it: for tests, fuzzers and the program
// that checks files. A fault is one of this library, never of a file.
namespace orvane {

// Walks the whole of `document`, in linear time, and changes nothing in it. Returns an empty text,
// or what is wrong with it.
[[nodiscard]] std::string FindFault(HtrDocument& document);

}  // namespace orvane
