#include "cli/rewrite/output_formats.h"

#include <array>
#include <cassert>
#include <string_view>

#include "cli/common/failure.h"
#include "formats/edit/renaming.h"
#include "formats/htr/writer.h"
#include "formats/text/numbers.h"
#include "formats/trc/writer.h"
#include "host/base/letter_case.h"
#include "platform/path_text.h"

namespace cli {
namespace {

// How documents of one kind are written in a format; null where they are not.
template <typename Document>
using Printer = std::string (*)(const Document&, const Wording&);

struct FormatRow {
  OutputFormat format;
  std::string_view name;  // the extension without its full stop
  Printer<orvane::HtrDocument> print_motion;
  Printer<orvane::TRCDocument> print_markers;
};

// What `print` hands over to the taker that it is called with.
template <typename Print>
std::string Gathered(const Print& print) {
  std::string bytes;
  print([&bytes](std::string_view piece) { bytes += piece; });
  return bytes;
}

Failure NotReadBack(const Wording& wording, const std::string& why, const std::string& advice) {
  return {ExitStatus::kRefused, {{wording.input, why, advice}}};
}

std::string MotionAsHtr(const orvane::HtrDocument& document, const Wording& wording) {
  for (const std::string& name : document.GetSegmentNames()) {
    const char* const why = orvane::WhyNoSegmentName(name);
    if (why == nullptr) continue;
    throw NotReadBack(wording, "its segment \"" + name + "\" could not be read back: it " + why,
                      "--rename gives it another name.");
  }
  orvane::HtrManner manner;
  manner.numbers = wording.numbers;
  manner.frame_rate = wording.rates.data;
  manner.gravity_axis = document.GetGlobalAxisofGravity();
  return Gathered([&](const orvane::TextTaker& take) { PrintHtr(document, take, manner); });
}

std::string MarkersAsTrc(const orvane::TRCDocument& document, const Wording& wording) {
  orvane::TrcManner manner;
  manner.numbers = wording.numbers;
  manner.data_rate = wording.rates.data;
  manner.camera_rate = wording.rates.camera;
  manner.original_rate = wording.rates.original;
  manner.name = wording.name;
  std::string why;
  std::string bytes =
      Gathered([&](const orvane::TextTaker& take) { why = PrintTrc(document, take, manner); });
  if (why.empty()) return bytes;
  throw NotReadBack(wording, "it cannot be written so that it could be read back: " + why,
                    "--rename gives other names; --select and --decimals make lines shorter.");
}

double RateOf(const orvane::HtrDocument& document) { return document.GetDataFrameRate(); }
double RateOf(const orvane::TRCDocument& document) { return document.DataRate(); }

template <typename Document>
std::string AsCsv(const Document& document, const Wording& wording) {
  orvane::CsvManner table = wording.table;
  table.numbers = wording.numbers;
  table.frames_per_second =
      wording.rates.data.empty() ? RateOf(document) : orvane::ParseDouble(wording.rates.data);
  return Gathered([&](const orvane::TextTaker& take) { PrintCsv(document, take, table); });
}

// A new format is one row more.
constexpr std::array kFormats = {
    FormatRow{OutputFormat::kHtr, "htr", MotionAsHtr, nullptr},
    FormatRow{OutputFormat::kTrc, "trc", nullptr, MarkersAsTrc},
    FormatRow{OutputFormat::kCsv, "csv", AsCsv<orvane::HtrDocument>, AsCsv<orvane::TRCDocument>},
};

bool Takes(const FormatRow& row, FileKind kind) {
  return kind == FileKind::kHtr ? row.print_motion != nullptr : row.print_markers != nullptr;
}

// ".htr or .csv", of files of `kind`.
std::string FormatsOf(FileKind kind) {
  std::string list;
  for (const FormatRow& row : kFormats) {
    if (Takes(row, kind)) list.append(list.empty() ? "." : ", .").append(row.name);
  }
  return list;
}

const FormatRow* FindFormat(std::string_view name) {
  for (const FormatRow& row : kFormats) {
    if (host::SameButForCase(row.name, name)) return &row;
  }
  return nullptr;
}

const FormatRow& RowOf(OutputFormat format) {
  for (const FormatRow& row : kFormats) {
    if (row.format == format) return row;
  }
  assert(false);
  return kFormats.front();
}

// The extension of `output` without its full stop.
std::string ExtensionIn(const std::string& output) {
  const std::string extension = platform::TextOf(platform::PathOf(output).extension());
  return extension.empty() ? extension : extension.substr(1);
}

Failure WrongUsage(const Complaint& complaint) { return {ExitStatus::kWrongUsage, {complaint}}; }

}  // namespace

std::vector<std::string> NamesOfFormats() {
  std::vector<std::string> names;
  names.reserve(kFormats.size());
  for (const FormatRow& row : kFormats) names.emplace_back(row.name);
  return names;
}

std::string ListOfFormats() {
  return FormatsOf(FileKind::kHtr) + " of HTR files, " + FormatsOf(FileKind::kTrc) +
         " of TRC files";
}

// Standard output has no name, and gets what the input is.
OutputFormat FormatFor(const RewriteOrder& order, FileKind kind) {
  const bool is_stream = order.output == "-";
  std::string name = order.format;
  if (name.empty()) name = is_stream ? ExtensionOf(kind) : ExtensionIn(order.output);
  const FormatRow* const row = FindFormat(name);
  if (row == nullptr) {
    throw WrongUsage({order.output, "says by no extension what is to be written",
                      "There are " + ListOfFormats() + "; --to says it, too."});
  }
  if (!Takes(*row, kind)) {
    throw WrongUsage({order.output,
                      std::string("of ") + ExtensionOf(kind) + " files no ." +
                          std::string(row->name) + " is made",
                      std::string(ExtensionOf(kind)) + " files become " + FormatsOf(kind) + "."});
  }
  if (!order.table_flag.empty() && row->format != OutputFormat::kCsv) {
    throw WrongUsage({order.table_flag, "is for CSV files", ""});
  }
  return row->format;
}

std::string BytesAs(OutputFormat format, const orvane::HtrDocument& document,
                    const Wording& wording) {
  return RowOf(format).print_motion(document, wording);
}

std::string BytesAs(OutputFormat format, const orvane::TRCDocument& document,
                    const Wording& wording) {
  return RowOf(format).print_markers(document, wording);
}

}  // namespace cli
