#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/common/file_kind.h"
#include "cli/common/report_flags.h"
#include "formats/bvh/plan.h"
#include "formats/csv/writer.h"
#include "formats/edit/resampling.h"
#include "formats/text/number_form.h"
#include "inspect/counts/frame_span.h"

// What the user wants of a file that is rewritten.

namespace cli {

enum class UpAxis { kY, kZ };

struct RewriteOrder {
  std::string input;
  std::string stream_name;       // of standard input; empty: its own
  std::optional<FileKind> kind;  // of the input; nothing for what its name says
  std::string output;            // "-" for standard output
  std::string format;            // "trc"; empty for what the output's name says
  orvane::NumberForm numbers = orvane::NumberForm::Shortest();
  std::optional<orvane::FrameSpan> cut;
  std::vector<std::string> selection;  // names, or several with commas between
  std::vector<std::pair<std::string, std::string>> renames;
  std::string mapping;                // a file with names; empty for none
  std::optional<std::uint32_t> unit;  // a length code
  std::optional<UpAxis> up;           // what the heights of the file lie along
  std::string rate;                   // a number as text; empty for that of the file
  std::optional<orvane::RotationPath> resampling;
  std::optional<std::int32_t> start_frame;
  std::optional<double> start_time;  // of the first frame, in seconds
  orvane::CsvManner table{};         // of CSV files alone; its numbers are those above
  orvane::BvhPositions positions = orvane::BvhPositions::kRoot;  // of BVH files
  std::string root;                                              // of those; empty for the only one
  // The flags that are for files of one format alone, with its name.
  std::vector<std::pair<std::string, std::string>> format_flags;
  // Those that are for files of one kind alone.
  std::vector<std::pair<std::string, FileKind>> kind_flags;
  ReportManner report;
  bool force = false;
  bool json = false;
  bool quiet = false;
};

}  // namespace cli
