#pragma once

#include <string>

namespace cli {

// Prepares for what the reading of the file `path` takes: about as much room as its bytes would. A
// file that is not there takes none.
void ExpectReading(const std::string& path);

}  // namespace cli
