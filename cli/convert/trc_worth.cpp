#include "cli/convert/trc_worth.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "cli/common/input.h"
#include "cli/common/known_messages.h"
#include "formats/text/files.h"
#include "formats/trc/document.h"
#include "inspect/check/mnm_check.h"
#include "inspect/check/trc_check.h"
#include "inspect/counts/frame_counts.h"
#include "inspect/summary/trc_outline.h"
#include "platform/input_file.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::FileReport;
using orvane::FrameCounts;
using orvane::MadeUpFrames;
using orvane::MarkerNaming;
using orvane::OutlineTrcFile;
using orvane::WhyOutOfProportion;
using orvane::WhyTooShort;

void WarnOfMarkers(Conversion& conversion, const orvane::TRCDocument& document,
                   const MarkerNaming& naming) {
  if (document.MarkerCount() > 0 && !naming.KeepsAny(document)) {
    conversion.warnings.push_back({conversion.input, "The mapping has none of the file's markers",
                                   "\"orvane map lint\" compares the two."});
  }
  for (const std::string& clash : naming.DescribeClashes(document)) {
    conversion.warnings.push_back(
        {conversion.input, clash, "Who reads the output cannot tell them apart."});
  }
}

// How many of the markers are written.
std::int64_t CountKept(const orvane::TRCDocument& document, const MarkerNaming& naming) {
  const auto& markers = document.markers();
  return std::count_if(markers.begin(), markers.end(), [&](const auto& marker) {
    return naming.NameFor(marker.Name()).has_value();
  });
}

// Why the header announces too much to write of the file, and what to do about it.
Complaint FindExcess(const std::string& file, const FrameCounts& counts, std::int64_t markers,
                     std::int64_t kept) {
  const MadeUpFrames behind_last = {std::max<std::int64_t>(counts.announced - counts.most_held, 0),
                                    "marker", kept, counts.most_held * markers, 0};
  return {file, WhyOutOfProportion(counts.announced, counts, behind_last),
          "Is \"NumFrames\" right?"};
}

// Why the file is too short for what would be written of it, and what to do about it.
Complaint FindShortness(const std::string& file, const FrameCounts& counts, std::int64_t kept) {
  std::error_code error;
  const std::uintmax_t bytes = std::filesystem::file_size(platform::PathOf(file), error);
  if (error) return {};
  return {file, WhyTooShort(static_cast<std::int64_t>(bytes), counts.announced, kept),
          "Do its lines hold all columns?"};
}

void JudgeFrames(Conversion& conversion, const orvane::TRCDocument& document,
                 const orvane::TRCOutliner& outline, const MarkerNaming& naming) {
  conversion.markers_dropped = document.MarkerCount();
  const auto held = static_cast<std::int64_t>(outline.Frames());
  const FrameCounts counts{document.NumFrames(), held, held};
  const std::int64_t kept = CountKept(document, naming);
  Complaint refusal = FindExcess(conversion.input, counts, document.MarkerCount(), kept);
  conversion.announces_too_much = !refusal.text.empty();
  if (refusal.text.empty()) refusal = FindShortness(conversion.input, counts, kept);
  if (!refusal.text.empty()) {
    conversion.status = ConversionStatus::kRefused;
    conversion.errors.push_back(refusal);
    return;
  }
  WarnOfMarkers(conversion, document, naming);
}

RateSource RateSourceOf(const orvane::TRCOutliner& outline, const std::string& message) {
  constexpr std::size_t kLinesWithRates = 3;
  if (outline.Lines() < kLinesWithRates) return RateSource::kOthersShort;
  return message.empty() ? RateSource::kFile : RateSource::kOthers;
}

// What the markers of the capture `file`, whose `bytes` these are, are to `mapping`.
FileReport ReportOnMarkers(const std::string& mapping, const std::string& file,
                           const std::string& bytes) {
  orvane::MappedCapture capture{file, {}};
  const std::optional<std::string> entries = orvane::ReadFileBytes(mapping);
  if (!entries || !orvane::ListTrcMarkers(bytes, capture.markers).empty()) return {};
  return ReportOn(orvane::CheckMapping(mapping, *entries, capture).back(), Action::kConvert);
}

FileReport ReportOnFile(const std::string& mapping, const std::string& file,
                        const std::string& bytes) {
  FileReport report = ReportOn(orvane::CheckTrc(file, bytes), Action::kConvert);
  if (mapping.empty()) return report;
  report = report.Without("trc-name-with-blank");  // no entry can name such a marker: it is dropped
  report.Take(ReportOnMarkers(mapping, file, bytes));
  return report;
}

bool IsForbidden(const Conversion& conversion, const ReportManner& manner) {
  return Forbids(manner, conversion.report) || (manner.strict && !conversion.warnings.empty());
}

}  // namespace

void LoadMapping(const std::string& mapping, MarkerNaming& naming) {
  if (mapping.empty() || naming.Load(mapping)) return;
  throw Failure{ExitStatus::kInputOutput, {{mapping, orvane::kNotOpened, ""}}};
}

void RequireInput(Conversion& conversion) {
  if (conversion.status != ConversionStatus::kPlanned) return;
  const std::string reason = platform::WhyUnreadable(conversion.input);
  if (reason.empty()) return;
  conversion.status = ConversionStatus::kUnreadable;
  conversion.errors.push_back({conversion.input, reason, ""});
}

void RefuseForeignRate(Conversion& conversion) {
  conversion.status = ConversionStatus::kRefused;
  conversion.errors.push_back({conversion.input,
                               "The file ends before its third line, which tells its rates",
                               "It would be written with a camera rate that is not its own."});
}

RateSource JudgeInput(Conversion& conversion, const MarkerNaming& naming) {
  RequireInput(conversion);
  const std::optional<orvane::TRCOutliner> outline = OutlineTrcFile(conversion.input);
  if (!outline) return RateSource::kFile;
  orvane::TRCDocument document;
  const std::string message = document.ReadBytes(outline->Header(), false);
  const RateSource rate = RateSourceOf(*outline, message);
  if (!message.empty()) return rate;
  if (rate == RateSource::kFile) {
    JudgeFrames(conversion, document, *outline, naming);
  } else {
    RefuseForeignRate(conversion);
  }
  return rate;
}

void ReportOnInput(Conversion& conversion, const std::string& mapping, const ReportManner& manner) {
  const bool is_planned = conversion.status == ConversionStatus::kPlanned;
  if (!is_planned && conversion.status != ConversionStatus::kRefused) return;
  const std::optional<std::string> bytes = orvane::ReadFileBytes(conversion.input);
  if (!bytes) return RequireInput(conversion);
  try {
    conversion.report = ReportOnFile(mapping, conversion.input, *bytes);
  } catch (const orvane::CheckFailure& failure) {
    conversion.status = ConversionStatus::kUnreadable;
    conversion.errors.push_back({conversion.input, failure.what(), failure.Advice()});
    return;
  }
  if (conversion.z_up) conversion.report = conversion.report.Without("trc-up-axis");
  if (!is_planned || !IsForbidden(conversion, manner)) return;
  conversion.status = ConversionStatus::kRefused;
  conversion.errors.push_back(
      {conversion.input, "The file is not converted, as --strict wishes", ""});
}

}  // namespace cli
