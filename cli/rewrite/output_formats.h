#pragma once

#include <string>
#include <vector>

#include "cli/common/file_kind.h"
#include "cli/rewrite/rewrite_order.h"
#include "formats/csv/writer.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "inspect/summary/frame_rate.h"

// The formats that files are rewritten in, and how.

namespace cli {

enum class OutputFormat { kHtr, kTrc, kCsv };

// "htr", "trc" and so on.
[[nodiscard]] std::vector<std::string> NamesOfFormats();

// ".htr of HTR files, .trc of TRC files".
[[nodiscard]] std::string ListOfFormats();

// The format that `order` asks for, of a file of `kind`. Throws a Failure for wrong usage when
// there is none, or when such a file does not become one.
[[nodiscard]] OutputFormat FormatFor(const RewriteOrder& order, FileKind kind);

// What is to be written, beside a document.
struct Wording {
  std::string input;  // as the user knows it, for refusals
  std::string name;   // of the file that is made, without folders
  orvane::NumberForm numbers = orvane::NumberForm::Shortest();
  orvane::RateTexts rates{};
  orvane::CsvManner table{};  // of CSV files, but for its numbers and times
};

// The bytes of a file of `format` that holds `document`. Throws a Failure when no such file could
// be read back. REQUIRES: such documents become files of that format.
[[nodiscard]] std::string BytesAs(OutputFormat format, const orvane::HtrDocument& document,
                                  const Wording& wording);
[[nodiscard]] std::string BytesAs(OutputFormat format, const orvane::TRCDocument& document,
                                  const Wording& wording);

}  // namespace cli
