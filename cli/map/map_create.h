#pragma once

#include <string>

#include "cli/common/failure.h"
#include "cli/common/plugin_session.h"
#include "cli/common/report_flags.h"
#include "formats/mnm/standard_markers.h"

// `orvane map create`: the plug-in's mapping creator, used by somebody who picks by a table.

namespace cli {

struct MapCreateArguments {
  std::string marker_file;
  std::string stream_name;  // of standard input; empty: its own
  std::string output;
  std::string picks;
  std::string module = DefaultModulePath();
  orvane::WristSticks sticks;
  ReportManner report;
  bool json = false;
  bool force = false;
  bool quiet = false;
};

// Imports the marker file into a new scene, lets the creator ask for each marker, picks it or skips
// it by the table, and delivers the mapping that the plug-in has written. Throws a Failure.
[[nodiscard]] ExitStatus CreateMapping(const MapCreateArguments& arguments);

}  // namespace cli
