#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/convert/conversion_order.h"
#include "cli/convert/conversion_plan.h"
#include "platform/side_by_side.h"

// What `orvane convert` is asked for on its command line.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// What --allow takes beside codes: files of which no marker is left.
inline constexpr char kAllowEmpty[] = "empty";

struct ConvertArguments {
  std::vector<std::string> inputs;
  std::string stream_name;  // of standard input; empty: its own
  OutputWishes output;
  ConversionOrder order;
  std::string offset;
  bool offset_in_trc_space = true;
  bool z_up = false;  // heights lie along Z: files are turned before
  std::size_t jobs = platform::ProcessorCount();
  bool dry_run = false;
  bool json = false;
  bool quiet = false;
};

// Adds the flags to `verb` that set `arguments`, which must outlive the parsing.
void AddConvertFlags(CLI::App& verb, ConvertArguments& arguments);

}  // namespace cli
