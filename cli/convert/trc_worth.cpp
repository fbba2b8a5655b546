#include "cli/convert/trc_worth.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "cli/common/cut_frames.h"
#include "cli/common/input.h"
#include "cli/common/known_messages.h"
#include "cli/common/taken_names.h"
#include "formats/text/files.h"
#include "inspect/check/mnm_check.h"
#include "inspect/check/trc_check.h"
#include "inspect/counts/frame_counts.h"
#include "inspect/report/cut_check.h"
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

// How many of the markers are written.
std::int64_t CountKept(const orvane::TRCDocument& document, const orvane::NameMatch& match,
                       const MarkerNaming& naming) {
  const auto& markers = document.markers();
  return std::count_if(markers.begin(), markers.end(), [&](const auto& marker) {
    return naming.NameFor(match.NameInMapping(marker.Name())).has_value();
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
                 const FrameCounts& counts, const MarkerNaming& naming) {
  conversion.markers_dropped = document.MarkerCount();
  const std::int64_t kept = CountKept(document, conversion.match, naming);
  Complaint refusal = FindExcess(conversion.input, counts, document.MarkerCount(), kept);
  if (!refusal.text.empty()) conversion.told = {"trc-frames-too-many", "trc-frame-count"};
  if (refusal.text.empty()) refusal = FindShortness(conversion.input, counts, kept);
  if (!refusal.text.empty()) {
    conversion.status = ConversionStatus::kRefused;
    conversion.errors.push_back(refusal);
    return;
  }
  conversion.is_empty = kept == 0;
}

// The frames of the input when `asked` are cut out of it; refuses it when it has none of these.
FrameCounts CountCut(Conversion& conversion, const orvane::FrameSpan& asked,
                     const orvane::TRCOutliner& outline) {
  const orvane::FrameSpan held = FramesHeld(outline);
  const std::int64_t count = Overlap(asked, held).Count();
  if (count > 0) return {count, count, count};
  conversion.status = ConversionStatus::kRefused;
  conversion.told = {"cut-range-outside"};
  conversion.errors.push_back(ComplainAboutCut(conversion.input, asked, held));
  return {};
}

FrameCounts CountAll(const orvane::TRCDocument& document, const orvane::TRCOutliner& outline) {
  const auto held = static_cast<std::int64_t>(outline.Frames());
  return {document.NumFrames(), held, held};
}

RateSource RateSourceOf(const orvane::TRCOutliner& outline, const std::string& message) {
  constexpr std::size_t kLinesWithRates = 3;
  if (outline.Lines() < kLinesWithRates) return RateSource::kOthersShort;
  return message.empty() ? RateSource::kFile : RateSource::kOthers;
}

// What the markers of a capture, whose `bytes` these are, are to `mapping`. It is not taken when it
// is ambiguous.
FileReport ReportOnMarkers(const std::string& mapping, const Conversion& conversion,
                           const std::string& bytes, const orvane::ActionOptions& options) {
  if (!conversion.match.ambiguous.empty()) return {};
  orvane::MappedCapture capture{conversion.input, {}, conversion.match};
  const std::optional<std::string> entries = orvane::ReadFileBytes(mapping);
  if (!entries || !orvane::ListTrcMarkers(bytes, capture.markers).empty()) return {};
  const auto checked = orvane::CheckMapping(mapping, *entries, capture);
  return ReportOn(checked.back(), Action::kConvert, options);
}

// Of a file that nothing is made of it does not matter what else is odd, nor of markers that are
// all dropped which they are.
FileReport WithoutConsequences(FileReport report) {
  const auto cause = std::find_if(
      report.findings.begin(), report.findings.end(),
      [](const orvane::ReportedFinding& finding) { return finding.code == "mnm-fits-nothing"; });
  if (cause == report.findings.end()) return report;
  if (cause->severity == orvane::FindingSeverity::kError) {
    std::erase_if(report.findings, [](const orvane::ReportedFinding& finding) {
      return finding.severity != orvane::FindingSeverity::kError;
    });
  }
  return report.Without("mnm-marker-unmapped").Without("mnm-marker-unmappable");
}

FileReport ReportOnFile(const ConversionOrder& order, const Conversion& conversion,
                        const std::string& bytes) {
  orvane::ActionOptions options;
  options.markers = order.NeedsMarkers();
  options.all_markers = order.mapping.empty();
  orvane::TRCDocument document;
  orvane::CheckedFile checked = orvane::CheckTrc(conversion.input, bytes, document);
  if (order.cut && checked.refusal.empty()) {
    const orvane::FrameSpan held = FramesHeld(orvane::OutlineTrc(bytes));
    const bool is_told = document.MarkerCount() == 0 && held.IsEmpty();  // that it holds nothing
    if (!is_told) CheckCut(*order.cut, held, checked);
    options.frames = orvane::AskedFrames::kHeld;
  }
  FileReport report = ReportOn(checked, Action::kConvert, options);
  if (order.mapping.empty()) return report;
  report = report.Without("trc-name-with-blank");  // no entry can name such a marker: it is dropped
  report.Take(ReportOnMarkers(order.mapping, conversion, bytes, options));
  return WithoutConsequences(report);
}

void RefuseStrictly(Conversion& conversion, const ConversionOrder& order) {
  const std::string codes = ListOf(ForbiddingCodes(order.report, conversion.report));
  const std::string verb = order.report.dry_run ? "would not be converted" : "is not converted";
  conversion.status = ConversionStatus::kRefused;
  conversion.errors.push_back(
      {conversion.input, "With --strict the file " + verb + " because of " + codes, ""});
}

void ReportOnInput(Conversion& conversion, const ConversionOrder& order) {
  const bool is_planned = conversion.status == ConversionStatus::kPlanned;
  const std::optional<std::string> bytes = orvane::ReadFileBytes(conversion.input);
  if (!bytes) return RequireInput(conversion);
  try {
    conversion.report = ReportOnFile(order, conversion, *bytes);
  } catch (const orvane::CheckFailure& failure) {
    conversion.status = ConversionStatus::kUnreadable;
    conversion.errors.push_back({conversion.input, failure.what(), failure.Advice()});
    return;
  }
  if (is_planned && Forbids(order.report, conversion.report)) RefuseStrictly(conversion, order);
}

// Looks at the header of the input.
RateSource JudgeHeader(Conversion& conversion, const ConversionOrder& order,
                       const MarkerNaming& naming) {
  RequireInput(conversion);
  const std::optional<orvane::TRCOutliner> outline = OutlineTrcFile(conversion.input);
  if (!outline) return RateSource::kFile;
  orvane::TRCDocument document;
  const std::string message = document.ReadBytes(outline->Header(), false);
  const RateSource rate = RateSourceOf(*outline, message);
  if (!message.empty()) return rate;
  MatchNames(conversion, document, naming, order.names);
  if (conversion.status == ConversionStatus::kRefused) return rate;
  if (rate != RateSource::kFile) {
    RefuseForeignRate(conversion);
    return rate;
  }
  const FrameCounts counts =
      order.cut ? CountCut(conversion, *order.cut, *outline) : CountAll(document, *outline);
  if (conversion.status != ConversionStatus::kRefused) {
    JudgeFrames(conversion, document, counts, naming);
  }
  return rate;
}

// Without a report nothing else says why.
void SettleEmpty(Conversion& conversion, const ConversionOrder& order) {
  conversion.status = ConversionStatus::kEmpty;
  if (!order.report.omitted) return;
  conversion.errors.push_back({conversion.input, "No marker is left to write",
                               "--allow empty writes the file all the same."});
}

// Why a file ends too early, when the report knows: what whole file it is.
bool NamesWhy(const Conversion& conversion) {
  const auto& findings = conversion.report.findings;
  return std::any_of(findings.begin(), findings.end(), [&conversion](const auto& finding) {
    const auto& told = conversion.told;
    return finding.severity == orvane::FindingSeverity::kError &&
           std::find(told.begin(), told.end(), finding.code) == told.end();
  });
}

}  // namespace

void LoadMapping(const std::string& mapping, MarkerNaming& naming) {
  if (mapping.empty() || naming.Load(mapping)) return;
  throw Failure{ExitStatus::kInputOutput, {{mapping, orvane::kNotOpened, ""}}};
}

void MatchNames(Conversion& conversion, const orvane::TRCDocument& document,
                const MarkerNaming& naming, orvane::NameMatching how) {
  std::vector<std::string> names;
  for (const orvane::TRCMarker& marker : document.markers()) names.push_back(marker.Name());
  conversion.match = naming.Match(names, how);
  const std::optional<Complaint> ambiguity = FindAmbiguity(conversion.input, conversion.match);
  if (!ambiguity) return;
  conversion.match.taken.clear();
  if (conversion.status != ConversionStatus::kPlanned) return;
  conversion.status = ConversionStatus::kRefused;
  conversion.errors.push_back(*ambiguity);
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
  conversion.told = {"trc-markers-missing"};
  conversion.errors.push_back({conversion.input,
                               "The file ends before its third line, which tells its rates",
                               "It would be written with a camera rate that is not its own."});
}

RateSource JudgeInput(Conversion& conversion, const ConversionOrder& order,
                      const MarkerNaming& naming) {
  const RateSource rate = JudgeHeader(conversion, order, naming);
  const bool is_settled = conversion.status != ConversionStatus::kPlanned;
  if (!is_settled && conversion.is_empty && order.NeedsMarkers()) SettleEmpty(conversion, order);
  const bool is_unreadable = conversion.status == ConversionStatus::kUnreadable;
  if (!order.report.omitted && !is_unreadable) ReportOnInput(conversion, order);
  const bool ends_early = rate == RateSource::kOthersShort && is_settled;
  if (ends_early && NamesWhy(conversion)) conversion.errors.clear();
  return rate;
}

}  // namespace cli
