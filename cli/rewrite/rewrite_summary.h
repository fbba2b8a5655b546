#pragma once

#include <cstddef>
#include <ostream>
#include <string>

#include "cli/common/file_kind.h"
#include "inspect/counts/frame_span.h"
#include "inspect/report/report.h"

// What came of the rewriting of a file: for a person, and as JSON. docs/command-line.md documents
// both.

namespace cli {

struct RewrittenFile {
  std::string input;
  FileKind kind = FileKind::kHtr;
  std::string output;
  std::size_t parts = 0;  // segments or markers
  orvane::FrameSpan frames{};
  std::string rate{};  // frames per second, as the files say it
  std::size_t bytes = 0;
  bool is_checked = true;  // whether anything was looked for in the input
  orvane::FileReport report{};
};

void PrintRewriteSummary(const RewrittenFile& file, std::ostream& out);
void PrintRewriteJson(const RewrittenFile& file, std::ostream& out);

}  // namespace cli
