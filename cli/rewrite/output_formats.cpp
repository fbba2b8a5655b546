#include "cli/rewrite/output_formats.h"

#include <array>
#include <cassert>
#include <string_view>

#include "cli/common/failure.h"
#include "cli/rewrite/bvh_file.h"
#include "cli/rewrite/c3d_file.h"
#include "formats/csv/writer.h"
#include "formats/edit/renaming.h"
#include "formats/htr/writer.h"
#include "formats/text/numbers.h"
#include "formats/trc/writer.h"
#include "host/base/letter_case.h"
#include "platform/path_text.h"

namespace cli {
namespace {

// How documents of one kind become files of a format; null where they do not.
template <typename Document>
using Preparer = PreparedFile (*)(const Document&, const Wording&);

struct FormatRow {
  OutputFormat format;
  std::string_view name;  // the extension without its full stop
  Preparer<orvane::HtrDocument> prepare_motion;
  Preparer<orvane::TRCDocument> prepare_markers;
  bool is_text = true;
  bool tells_up_axis = false;
};

void PrintAsHtr(const orvane::HtrDocument& document, const Wording& wording,
                const orvane::TextTaker& take) {
  for (const std::string& name : document.GetSegmentNames()) {
    const char* const why = orvane::WhyNoSegmentName(name);
    if (why == nullptr) continue;
    throw NoFile(wording, "its segment \"" + name + "\" could not be read back: it " + why,
                 "--rename gives it another name.");
  }
  orvane::HtrManner manner;
  manner.numbers = wording.order.numbers;
  manner.frame_rate = wording.rates.data;
  manner.gravity_axis = document.GetGlobalAxisofGravity();
  PrintHtr(document, take, manner);
}

void PrintAsTrc(const orvane::TRCDocument& document, const Wording& wording,
                const orvane::TextTaker& take) {
  orvane::TrcManner manner;
  manner.numbers = wording.order.numbers;
  manner.data_rate = wording.rates.data;
  manner.camera_rate = wording.rates.camera;
  manner.original_rate = wording.rates.original;
  manner.first_time = wording.first_time;
  manner.name = wording.name;
  const std::string why = PrintTrc(document, take, manner);
  if (why.empty()) return;
  throw NoFile(wording, "it cannot be written so that it could be read back: " + why,
               "--rename gives other names; --select and --decimals make lines shorter.");
}

double RateOf(const orvane::HtrDocument& document) { return document.GetDataFrameRate(); }
double RateOf(const orvane::TRCDocument& document) { return document.DataRate(); }

template <typename Document>
void PrintAsCsv(const Document& document, const Wording& wording, const orvane::TextTaker& take) {
  orvane::CsvManner table = wording.order.table;
  table.numbers = wording.order.numbers;
  table.frames_per_second =
      wording.rates.data.empty() ? RateOf(document) : orvane::ParseDouble(wording.rates.data);
  table.first_time = wording.first_time;
  PrintCsv(document, take, table);
}

bool IsScaled(const orvane::HtrSegment& segment) {
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    if (segment.GetFrameScale(frame) != 1.0) return true;
  }
  return false;
}

std::vector<orvane::RewriteLoss> LostInCsv(const orvane::HtrDocument& document) {
  std::vector<orvane::RewriteLoss> losses = {{"rewrite-skeleton-lost"}};
  orvane::RewriteLoss scales{"rewrite-scale-lost"};
  for (const orvane::HtrSegment& segment : document.segments()) {
    if (IsScaled(segment)) scales.names.push_back(segment.GetName());
  }
  if (!scales.names.empty()) losses.push_back(std::move(scales));
  return losses;
}

template <typename Document,
          void (*kPrint)(const Document&, const Wording&, const orvane::TextTaker&)>
PreparedFile Prepared(const Document& document, const Wording& wording) {
  return {{},
          [&document, wording](const orvane::TextTaker& take) { kPrint(document, wording, take); }};
}

PreparedFile MotionAsCsv(const orvane::HtrDocument& document, const Wording& wording) {
  PreparedFile file = Prepared<orvane::HtrDocument, PrintAsCsv>(document, wording);
  file.losses = LostInCsv(document);
  return file;
}

// A new format is one row more.
constexpr std::array kFormats = {
    FormatRow{OutputFormat::kHtr, "htr", Prepared<orvane::HtrDocument, PrintAsHtr>, nullptr},
    FormatRow{OutputFormat::kTrc, "trc", nullptr, Prepared<orvane::TRCDocument, PrintAsTrc>},
    FormatRow{OutputFormat::kCsv, "csv", MotionAsCsv, Prepared<orvane::TRCDocument, PrintAsCsv>},
    FormatRow{OutputFormat::kBvh, "bvh", PrepareBvh, nullptr},
    FormatRow{OutputFormat::kC3d, "c3d", nullptr, PrepareC3d, false, true},
};

bool Takes(const FormatRow& row, FileKind kind) {
  return kind == FileKind::kHtr ? row.prepare_motion != nullptr : row.prepare_markers != nullptr;
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

// The extension of `name` without its full stop.
std::string ExtensionIn(const std::string& name) {
  const std::string extension = platform::TextOf(platform::PathOf(name).extension());
  return extension.empty() ? extension : extension.substr(1);
}

// Whether neither the user nor the name of the input says what that is.
bool IsGuessed(const RewriteOrder& order) {
  if (order.kind || order.input == "-") return false;
  const std::string extension = ExtensionIn(order.input);
  return !host::SameButForCase(extension, "htr") && !host::SameButForCase(extension, "trc");
}

Failure WrongUsage(const Complaint& complaint) { return {ExitStatus::kWrongUsage, {complaint}}; }

void RequireFlagsOf(const FormatRow& row, FileKind kind, const RewriteOrder& order) {
  for (const auto& [flag, flag_kind] : order.kind_flags) {
    if (flag_kind != kind) {
      throw WrongUsage({flag, std::string("is for ") + ExtensionOf(flag_kind) + " files", ""});
    }
  }
  for (const auto& [flag, name] : order.format_flags) {
    if (!host::SameButForCase(name, row.name)) {
      throw WrongUsage({flag, "is for " + name + " files", ""});
    }
  }
  const bool holds_times = row.format == OutputFormat::kTrc || row.format == OutputFormat::kCsv;
  if (order.start_time && !holds_times) {
    throw WrongUsage({"--start-time", "is for TRC and CSV files", ""});
  }
  if (row.is_text || order.numbers.IsShortest()) return;
  throw WrongUsage({"--decimals", "is for files of text", ""});
}

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
  if (!Takes(*row, kind) && IsGuessed(order)) {
    throw WrongUsage({order.input,
                      std::string("is taken for an ") + ExtensionOf(kind) +
                          " file, and of those no ." + std::string(row->name) + " is made",
                      "--as says what it is."});
  }
  if (!Takes(*row, kind)) {
    throw WrongUsage({order.output,
                      std::string("of ") + ExtensionOf(kind) + " files no ." +
                          std::string(row->name) + " is made",
                      std::string(ExtensionOf(kind)) + " files become " + FormatsOf(kind) + "."});
  }
  RequireFlagsOf(*row, kind, order);
  return row->format;
}

bool TellsUpAxis(OutputFormat format) { return RowOf(format).tells_up_axis; }

bool HasAllInEveryFrame(OutputFormat format) { return format != OutputFormat::kHtr; }

PreparedFile PrepareFile(OutputFormat format, const orvane::HtrDocument& document,
                         const Wording& wording) {
  return RowOf(format).prepare_motion(document, wording);
}

PreparedFile PrepareFile(OutputFormat format, const orvane::TRCDocument& document,
                         const Wording& wording) {
  return RowOf(format).prepare_markers(document, wording);
}

}  // namespace cli
