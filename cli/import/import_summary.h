#pragma once

#include <cstddef>
#include <ostream>
#include <string>

#include "host/scene/scene.h"

// What came of an import, for a person.

namespace cli {

struct ImportedFile {
  std::string input;
  std::string output;
  std::size_t output_bytes = 0;
  bool unreported = false;  // nothing was looked for in it
};

void PrintImportSummary(const ImportedFile& file, const host::Scene& scene, std::ostream& out);

}  // namespace cli
