#pragma once

#include <string>

namespace cli {

// Throws a Failure when `fault` is not empty: what a document checker found in the document that
// `file` was read into. It is a fault of this program, so that nothing it says of the file can be
// trusted.
void RequireSound(const std::string& file, const std::string& fault);

}  // namespace cli
