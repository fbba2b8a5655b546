#pragma once

#include <optional>
#include <string>

#include "cli/common/report_flags.h"
#include "cli/convert/converter_panel.h"
#include "inspect/mapping/name_matching.h"
#include "inspect/report/frame_check.h"

// How the files of `orvane convert` are to be converted, which is the same for all of them.

namespace cli {

struct ConversionOrder {
  std::string module;
  std::string mapping;  // the mapping file; empty: every marker is kept under its name
  orvane::NameMatching names = orvane::NameMatching::kExact;  // those that are the mapping's
  std::optional<OffsetWish> offset;
  std::optional<orvane::FrameSpan> cut;  // the only frames to take; nothing: all
  bool replace = false;                  // outputs that exist
  bool keep_broken = false;              // deliver what the plug-in makes of bad files, too
  bool allow_empty = false;              // an output without markers is as good as any
  ReportManner report{};
  bool single = false;  // one file, which the panel converts without a batch

  // Whether nothing is made of a file of which no marker is left.
  [[nodiscard]] bool NeedsMarkers() const { return !keep_broken && !allow_empty; }
};

}  // namespace cli
