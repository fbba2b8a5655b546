#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "cli/common/json_writer.h"
#include "formats/htr/document.h"
#include "inspect/report/report.h"
#include "inspect/summary/motion_summary.h"

// What `orvane info` tells of a motion file: as a page for a person, or as JSON for a program.
// docs/command-line.md documents the JSON; its version changes when a field changes its meaning or
// goes.

namespace cli {

struct InfoReport {
  std::string file;
  orvane::HtrDocument document;
  std::vector<orvane::HierarchyEntry> hierarchy;  // of `document`
  orvane::FileReport findings;
  std::optional<orvane::MotionSummary> motion;  // nothing when the motion was not read
};

void PrintInfoPage(const InfoReport& report, std::ostream& out);

// The object of one file. `with_frames` adds every value of every frame.
void WriteInfo(JsonWriter& json, const InfoReport& report, bool with_frames);

// What stands before and behind the objects of several files.
void BeginInfos(JsonWriter& json);
void EndInfos(JsonWriter& json);

}  // namespace cli
