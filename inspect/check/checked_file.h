#pragma once

#include <string>
#include <string_view>

#include "inspect/check/findings.h"

// What the check of one file has found.

namespace orvane {

struct CheckedFile {
  std::string file;
  std::string_view kind;  // "HTR"
  std::string contents;   // in a few words, such as "21 segments, 120 frames"
  FindingList findings;
  bool is_refused = false;  // by the reader
};

}  // namespace orvane
