#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "cli/common/input_file.h"
#include "cli/common/json_writer.h"
#include "cli/common/report_flags.h"
#include "formats/trc/document.h"
#include "inspect/counts/frame_span.h"
#include "inspect/summary/subject.h"
#include "inspect/summary/trc_summary.h"

// What `orvane info` tells of a marker file: as a page for a person, or as JSON for a program.
// docs/command-line.md documents the JSON; its version changes when a field changes its meaning or
// goes.

namespace cli {

struct TrcInfoReport {
  std::string file;
  orvane::TRCDocument document;
  orvane::TrcSummary summary;
  orvane::FileReport findings;
  std::optional<orvane::Subject> subject;  // nothing when no frame has two positions

  // Rates as the file has them, when reading took something off; else empty.
  std::string data_rate_text;
  std::string camera_rate_text;
};

// Reads `file`, or the frames of it that are to be `cut` out, into `report`. Throws a Failure when
// it is refused, holds no markers or none of these frames.
void ReadTrcInfo(const InputFile& file, const ReportManner& manner,
                 const std::optional<orvane::FrameSpan>& cut, TrcInfoReport& report);

void PrintInfoPage(const TrcInfoReport& report, std::ostream& out);

// The object of one file. `with_frames` adds every sample.
void WriteInfo(JsonWriter& json, const TrcInfoReport& report, bool with_frames);

}  // namespace cli
