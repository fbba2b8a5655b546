#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/findings.h"

// What `orvane check` tells of its files: as lines for a person, or as JSON for a program.
// docs/command-line.md documents the JSON; its version changes when a field changes its meaning or
// goes.

namespace cli {

struct CheckedFile {
  std::string file;
  std::string_view kind;  // "HTR"
  std::string contents;   // in a few words, such as "21 segments, 120 frames"
  FindingList findings;
};

// One line for a file without findings.
void PrintCheckedFile(const CheckedFile& checked, std::ostream& out);

void PrintCheckJson(const std::vector<CheckedFile>& files, std::ostream& out);

}  // namespace cli
