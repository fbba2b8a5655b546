#include "inspect/check/htr_check.h"

#include <array>

#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"
#include "inspect/check/content_kind.h"
#include "inspect/check/htr_findings_observer.h"
#include "inspect/check/htr_rules.h"
#include "inspect/check/htr_structure.h"
#include "inspect/check/started_source.h"
#include "inspect/check/text_flaw.h"

namespace orvane {
namespace {

// By TextFlaw.
constexpr std::array<FindingRule, 4> kFlawRules = {
    htr::Rule("htr-empty"), htr::Rule("htr-encoding"), htr::Rule("htr-line-ends"),
    htr::Rule("htr-first-section-lost")};

// A mark that keeps nothing from being read is no more than what the observer has told.
void NameWhatItIs(std::string_view start, FindingList& findings) {
  if (const auto kind = FindOtherKind(start, ContentKind::kHtr)) {
    return NameKindAlone(*kind, htr::Rule("htr-other-kind"), "an HTR file", WordsFor(*kind).advice,
                         findings);
  }
  const auto flaw = FindHtrTextFlaw(start);
  if (!flaw || findings.Count(FindingSeverity::kError) == 0) return;
  NameFlawAlone(*flaw, kFlawRules[static_cast<std::size_t>(*flaw)],
                "The import refuses the file; what else is odd about it is not told.", findings);
}

// A line of the hierarchy is one word then: the name of a segment without a parent.
void NameOtherSeparators(const htr::HtrParts& parts, FindingList& findings) {
  if (parts.segments.empty()) return;
  const htr::SegmentLines& first = parts.segments.front();
  const std::size_t separator = first.name.text.find_first_of(",;");
  if (!first.parent.text.empty() || separator == std::string_view::npos) return;
  const bool are_commas = first.name.text[separator] == ',';
  findings.ReplaceAll(
      htr::Rule("htr-tabs-missing"), {first.name.line, first.name.column},
      {Quote(first.name.text),
       std::string("tabs between cells, not ") + (are_commas ? "commas" : "semicolons"),
       "The import refuses the file; the rest of it is not checked."});
}

std::string Contents(const HtrDocument& document) {
  return CountOf(document.segments().size(), "segment") + ", " +
         CountOf(document.GetNumFrames(), "frame");
}

}  // namespace

CheckedFile CheckHtr(const std::string& file, ByteSource& source, HtrDocument& document) {
  CheckedFile checked{file, "HTR", {}, {}};
  StartedSource started(source);
  htr::HtrParts parts;
  htr::HtrFindingsObserver observer(parts, checked.findings);
  const std::string message = ReadHtrFrom(document, started, true, &observer);
  observer.Finish();
  if (observer.HasRefused()) checked.refusal = message;
  if (checked.refusal.empty()) RequireRead(message);
  RequireSound(FindFault(document));
  if (!observer.WasStopped()) htr::CheckStructure(document, parts, checked.findings);
  if (observer.HasRefused()) NameOtherSeparators(parts, checked.findings);
  NameWhatItIs(started.Start(), checked.findings);
  checked.contents = Contents(document);
  return checked;
}

}  // namespace orvane
