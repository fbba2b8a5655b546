#include "cli/convert/trc_worth.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

#include "cli/common/cut_frames.h"
#include "cli/common/input.h"
#include "cli/common/known_messages.h"
#include "cli/common/taken_names.h"
#include "cli/convert/trc_look.h"
#include "formats/text/files.h"
#include "inspect/check/mnm_check.h"
#include "inspect/counts/dropouts.h"
#include "inspect/counts/frame_counts.h"
#include "inspect/report/cut_check.h"
#include "platform/input_file.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::FileReport;
using orvane::FrameCounts;
using orvane::MadeUpFrames;
using orvane::MarkerNaming;
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
Complaint FindShortness(const InputFile& file, const FrameCounts& counts, std::int64_t kept) {
  std::error_code error;
  const std::uintmax_t bytes = std::filesystem::file_size(platform::PathOf(file.path), error);
  if (error) return {};
  return {file.name, WhyTooShort(static_cast<std::int64_t>(bytes), counts.announced, kept),
          "Do its lines hold all columns?"};
}

void JudgeFrames(Conversion& conversion, const orvane::TRCDocument& document,
                 const FrameCounts& counts, const MarkerNaming& naming) {
  conversion.markers_dropped = document.MarkerCount();
  const std::int64_t kept = CountKept(document, conversion.match, naming);
  Complaint refusal = FindExcess(conversion.input, counts, document.MarkerCount(), kept);
  if (!refusal.text.empty()) conversion.told = {"trc-frames-too-many", "trc-frame-count"};
  if (refusal.text.empty()) refusal = FindShortness(conversion.File(), counts, kept);
  if (!refusal.text.empty()) {
    conversion.status = ConversionStatus::kRefused;
    conversion.errors.push_back(refusal);
    return;
  }
  conversion.is_empty = kept == 0;
}

// The frames of the input when `asked` are cut out of it; refuses it when it has none of these.
FrameCounts CountCut(Conversion& conversion, const orvane::FrameSpan& asked,
                     const orvane::FrameSpan& held) {
  const std::int64_t count = Overlap(asked, held).Count();
  if (count > 0) return {count, count, count};
  conversion.status = ConversionStatus::kRefused;
  conversion.told = {"cut-range-outside"};
  conversion.errors.push_back(ComplainAboutCut(conversion.input, asked, held));
  return {};
}

RateSource RateSourceOf(const TrcLook& look) {
  if (!look.has_rates) return RateSource::kOthersShort;
  return look.refusal.empty() ? RateSource::kFile : RateSource::kOthers;
}

// What the markers of a capture, whose `header` this is, are to `mapping`. It is not taken when it
// is ambiguous.
FileReport ReportOnMarkers(const std::string& mapping, const Conversion& conversion,
                           const std::string& header, const orvane::ActionOptions& options) {
  if (!conversion.match.ambiguous.empty()) return {};
  orvane::MappedCapture capture{conversion.input, {}, conversion.match};
  const std::optional<std::string> entries = orvane::ReadFileBytes(mapping);
  if (!entries || !orvane::ListTrcMarkers(header, capture.markers).empty()) return {};
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

FileReport ReportOnFile(const ConversionOrder& order, const Conversion& conversion, TrcLook& look) {
  orvane::ActionOptions options;
  options.markers = order.NeedsMarkers();
  options.all_markers = order.mapping.empty();
  if (order.cut && look.refusal.empty()) {
    const bool is_told = look.document.MarkerCount() == 0 && look.held.IsEmpty();  // it holds none
    if (!is_told) CheckCut(*order.cut, look.held, *look.checked);
    options.frames = orvane::AskedFrames::kHeld;
  }
  FileReport report = ReportOn(*look.checked, Action::kConvert, options);
  if (order.mapping.empty()) return report;
  report = report.Without("trc-name-with-blank");  // no entry can name such a marker: it is dropped
  report.Take(ReportOnMarkers(order.mapping, conversion, look.header, options));
  return WithoutConsequences(report);
}

void RefuseStrictly(Conversion& conversion, const ConversionOrder& order) {
  const std::string codes = ListOf(ForbiddingCodes(order.report, conversion.report));
  const std::string verb = order.report.dry_run ? "would not be converted" : "is not converted";
  conversion.status = ConversionStatus::kRefused;
  conversion.errors.push_back(
      {conversion.input, "With --strict the file " + verb + " because of " + codes, ""});
}

void ReportOnInput(Conversion& conversion, const ConversionOrder& order, TrcLook& look) {
  const bool is_planned = conversion.status == ConversionStatus::kPlanned;
  conversion.report = ReportOnFile(order, conversion, look);
  if (is_planned && Forbids(order.report, conversion.report)) RefuseStrictly(conversion, order);
}

// By the names and the counts of a file that the reader takes.
void JudgeHeader(Conversion& conversion, const ConversionOrder& order, const MarkerNaming& naming,
                 const TrcLook& look) {
  if (!look.refusal.empty()) return;
  MatchNames(conversion, look.document, naming, order.names);
  if (conversion.status == ConversionStatus::kRefused) return;
  if (!look.has_rates) return RefuseForeignRate(conversion);
  const FrameCounts counts = order.cut
                                 ? CountCut(conversion, *order.cut, look.held)
                                 : FrameCounts{look.document.NumFrames(), look.frames, look.frames};
  if (conversion.status != ConversionStatus::kRefused) {
    JudgeFrames(conversion, look.document, counts, naming);
  }
}

// What the plug-in writes of the file, where its samples were read.
std::optional<WrittenCounts> CountWritten(const Conversion& conversion,
                                          const ConversionOrder& order, const MarkerNaming& naming,
                                          const TrcLook& look) {
  if (!look.samples || !look.refusal.empty()) return std::nullopt;
  orvane::FrameSpan frames = {0, std::int64_t{look.document.NumFrames()} - 1};
  if (order.cut) {
    const orvane::FrameSpan both = Overlap(*order.cut, look.held);
    frames = {both.first - look.held.first, both.last - look.held.first};
  }
  WrittenCounts counts{frames.Count(), 0, 0};
  for (std::size_t index = 0; index < look.document.MarkerCount(); ++index) {
    const std::string& name = look.document.MarkerAt(index)->Name();
    if (!naming.NameFor(conversion.match.NameInMapping(name))) continue;
    ++counts.markers;
    counts.dropouts +=
        CountDropouts(look.samples->Markers()[index].gaps, look.samples->Frames(), frames);
  }
  return counts;
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
  const std::string reason = platform::WhyUnreadable(conversion.source);
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

Judgment JudgeInput(Conversion& conversion, const ConversionOrder& order,
                    const MarkerNaming& naming) {
  RequireInput(conversion);
  if (conversion.status == ConversionStatus::kUnreadable) return {};
  std::unique_ptr<TrcLook> look;
  try {
    look = LookAtInput(conversion, order);
  } catch (const orvane::CheckFailure& failure) {
    conversion.status = ConversionStatus::kUnreadable;
    conversion.errors.push_back({conversion.input, failure.what(), failure.Advice()});
    return {};
  } catch (const Failure& failure) {
    conversion.status = ConversionStatus::kUnreadable;
    conversion.errors = failure.complaints;
    return {};
  }
  if (!look) {
    RequireInput(conversion);
    return {};
  }
  JudgeHeader(conversion, order, naming, *look);
  const bool is_settled = conversion.status != ConversionStatus::kPlanned;
  if (!is_settled && conversion.is_empty && order.NeedsMarkers()) SettleEmpty(conversion, order);
  if (look->checked) ReportOnInput(conversion, order, *look);
  const RateSource rate = RateSourceOf(*look);
  const bool ends_early = rate == RateSource::kOthersShort && is_settled;
  if (ends_early && NamesWhy(conversion)) conversion.errors.clear();
  return {rate, CountWritten(conversion, order, naming, *look)};
}

}  // namespace cli
