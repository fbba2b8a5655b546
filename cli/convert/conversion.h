#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/input_file.h"
#include "inspect/mapping/name_matching.h"
#include "inspect/report/report.h"

// One marker file of `orvane convert`: what is to become of it, and what became of it.

namespace cli {

enum class ConversionStatus {
  kPlanned,      // nothing has been done yet
  kConverted,    // the output is delivered
  kBroken,       // the reader refused the file
  kRefused,      // the program did, before the plug-in was asked
  kEmpty,        // no marker is left to write, and the user has not said that none need be
  kExists,       // the output is there already and is kept
  kUnreadable,   // there is no such file, or it may not be read
  kFailed,       // the output could not be written
  kInterrupted,  // the user stopped the program before its turn
};

struct Conversion {
  std::string input;   // as the user named it, with the extension that the reader adds
  std::string source;  // where its bytes are: the same, absolute
  std::string output;  // the file to make
  ConversionStatus status = ConversionStatus::kPlanned;
  bool delivered = false;  // whether there is an output, which may be that of a broken file

  // What is in the output; 0 when there is none.
  std::int64_t frames = 0;
  std::int64_t markers_kept = 0;
  std::int64_t markers_dropped = 0;
  std::int64_t dropouts = 0;  // of the markers that are kept

  std::vector<Complaint> errors;
  orvane::FileReport report;      // what is odd in the input; empty when that is not looked for
  std::vector<std::string> told;  // codes in it that an error tells of in their place
  bool is_empty = false;          // no marker is left to write
  bool z_up = false;              // its heights lie along Z: it is turned before
  orvane::NameMatch match;        // the markers that are taken for others of the mapping
  bool is_streamed = false;       // its user knows nothing of the source

  [[nodiscard]] InputFile File() const { return {input, source}; }
  // As logs name it.
  [[nodiscard]] const std::string& LoggedName() const { return is_streamed ? input : source; }
};

// As the table and JSON give it: "converted".
[[nodiscard]] std::string_view NameOf(ConversionStatus status);

[[nodiscard]] ExitStatus ExitStatusOf(ConversionStatus status);

}  // namespace cli
