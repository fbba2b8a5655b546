#pragma once

#include "cli/common/input_file.h"
#include "cli/rewrite/output_formats.h"
#include "cli/rewrite/rewrite_order.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"

// How much a file may ask for that is rewritten: lines that lack their columns, and segments that
// lack their frames, become cells all the same.

namespace cli {

// Throws a Failure when `document`, which was read from `input`, would become out of all proportion
// to what it holds.
void RequireProportion(const orvane::HtrDocument& document, const InputFile& input,
                       const RewriteOrder& order, OutputFormat format);
void RequireProportion(const orvane::TRCDocument& document, const InputFile& input,
                       const RewriteOrder& order, OutputFormat format);

}  // namespace cli
