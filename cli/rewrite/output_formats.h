#pragma once

#include <string>
#include <vector>

#include "cli/common/file_kind.h"
#include "cli/rewrite/prepared_file.h"
#include "cli/rewrite/rewrite_order.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"

// The formats that files are rewritten in, and how.

namespace cli {

enum class OutputFormat { kHtr, kTrc, kCsv, kBvh, kC3d };

// "htr", "trc" and so on.
[[nodiscard]] std::vector<std::string> NamesOfFormats();

// ".htr of HTR files, .trc of TRC files".
[[nodiscard]] std::string ListOfFormats();

// The format that `order` asks for, of a file of `kind`. Throws a Failure for wrong usage when
// there is none, or when such a file does not become one.
[[nodiscard]] OutputFormat FormatFor(const RewriteOrder& order, FileKind kind);

// Whether files of that format say which axis their heights lie along, so that nothing is turned.
[[nodiscard]] bool TellsUpAxis(OutputFormat format);

// Whether files of that format have a place for every segment in every frame, also where the
// document holds nothing.
[[nodiscard]] bool HasAllInEveryFrame(OutputFormat format);

// The file of `format` that holds `document`, which must be there and the same until it is printed.
// It refuses to be printed when it could not be read back. REQUIRES: such documents become files of
// that format.
[[nodiscard]] PreparedFile PrepareFile(OutputFormat format, const orvane::HtrDocument& document,
                                       const Wording& wording);
[[nodiscard]] PreparedFile PrepareFile(OutputFormat format, const orvane::TRCDocument& document,
                                       const Wording& wording);

}  // namespace cli
