#pragma once

#include <string>

#include "cli/common/failure.h"
#include "platform/output_file.h"

namespace cli {

// What to tell of the output `path`, which `file` makes, when it does not come about for `reason`.
Complaint ComplainAboutOutput(const std::string& path, const platform::OutputFile& file,
                              const std::string& reason);

}  // namespace cli
