#include "inspect/check/trc_check.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "formats/text/numbers.h"
#include "formats/trc/document_checker.h"
#include "inspect/check/content_kind.h"
#include "inspect/check/started_source.h"
#include "inspect/check/text_flaw.h"
#include "inspect/check/trc_findings_observer.h"
#include "inspect/check/trc_look_over.h"
#include "inspect/check/trc_parts.h"
#include "inspect/check/trc_positions.h"
#include "inspect/check/trc_rules.h"
#include "inspect/check/trc_samples.h"
#include "inspect/counts/frame_counts.h"
#include "inspect/counts/frame_span.h"
#include "inspect/summary/subject_measure.h"

namespace orvane {
namespace {

constexpr const char* kHeadingsAreNames =
    "They are the names of the markers: X1, X2 and so on; the next line is not read.";

// How many frames the markers have a sample in.
std::size_t FramesOf(const TRCDocument& document, const trc::TrcSamples& samples) {
  return document.MarkerCount() == 0 ? 0 : samples.Frames();
}

// What can be said of a file only when all of it has been read.
class WholeFile {
 public:
  // `subject` is who or what moves.
  WholeFile(const TRCDocument& document, const trc::TrcSamples& samples,
            const std::optional<Subject>& subject, const trc::TrcParts& parts,
            FindingList& findings)
      : document_(document),
        samples_(samples),
        subject_(subject),
        layout_(parts.layout),
        parts_(parts),
        findings_(findings) {}

  void Check() {
    CheckLayout();
    if (parts_.FrameCount() > 0) CheckFirstFrame();
    if (document_.MarkerCount() == 0) return AddMarkersMissing();
    CheckFrameCount();
    if (layout_.misplaced_name) return;  // from which gaps follow
    if (parts_.misfit) return AddMisfit(*parts_.misfit);
    trc::CheckNarrowFrames(parts_.widths, document_.MarkerCount(), findings_);
    trc::CheckPositions(document_, samples_.Markers(), subject_, parts_, findings_);
    for (std::size_t index = 0; index < parts_.markers.size(); ++index) {
      CheckGaps(*document_.MarkerAt(index), samples_.Markers()[index], parts_.markers[index]);
    }
  }

 private:
  using Gaps = std::vector<FrameGap>;

  void CheckLayout() {
    if (const auto& name = layout_.misplaced_name) {
      findings_.Add(
          trc::Rule("trc-names-misplaced"), name->place,
          {Quote(name->name) + ", " + CountOf(name->tabs, "tab") + " behind " +
               Quote(name->previous),
           "three tabs from each name to the next",
           "A name is taken every three tabs: markers get other names and other values."});
    }
    if (const auto& line = layout_.frame_of_tabs) {
      findings_.Add(trc::Rule("trc-blank-line-tabs"), *line,
                    {"a line of tabs", "a blank line, or the first frame",
                     "It is the first frame, without positions: every sample comes a frame late."});
    }
    if (const auto& name = layout_.headings_for_names) {
      findings_.Add(trc::Rule("trc-names-headings"), *name,
                    {"X1, Y1 and so on", "the names of the markers", kHeadingsAreNames});
    }
    if (parts_.blank_end) {
      const std::size_t blank = FramesRead() - Held();
      findings_.Add(trc::Rule("trc-lines-at-end"), *parts_.blank_end,
                    {CountOf(blank, "blank line") + " at the end",
                     "the end of the file behind the last frame",
                     "No more frames are announced than stand before: none is taken from there."});
    }
  }

  void CheckFirstFrame() {
    const std::int64_t taken = document_.FirstFrame();
    if (layout_.frame_of_tabs || parts_.first_number.empty()) return;
    const std::int64_t first = ParseInt(parts_.first_number);
    if (first == taken) return;
    const auto frames = static_cast<std::int64_t>(parts_.FrameCount());
    const std::int64_t last = ParseInt(parts_.last_number);
    const bool follow = last - first + 1 == frames;
    const bool is_announced = parts_.Value(TRCHeaderValue::kFirstFrame).has_value();
    findings_.Add(trc::Rule("trc-first-frame"), parts_.PlaceOfFrame(0),
                  {follow ? NumbersOf(FrameSpan{first, last}) : "from " + FormatInt(first) + " on",
                   NumbersOf(FrameSpan{taken, taken + frames - 1}) +
                       (is_announced ? ", as OrigDataStartFrame says"
                                     : ", as the path type is neither 3 nor 4"),
                   "--range takes them by these numbers: " + FormatInt(taken) + ":" +
                       FormatInt(taken + frames - 1) + " for all."});
  }

  void AddMarkersMissing() {
    findings_.SetFirstLineBehind(0);  // it is of the whole file
    findings_.Add(trc::Rule("trc-markers-missing"), parts_.end,
                  {"no marker", "names in the fourth line, a tab behind each",
                   "The import makes nothing of the file."});
  }

  // What markers hold then tells nothing of them.
  void AddMisfit(std::size_t fields) {
    const auto named = static_cast<std::int64_t>(parts_.named_fields);
    findings_.Add(trc::Rule("trc-columns-misfit"), parts_.PlaceOfFrame(0),
                  {CountOf(fields, "field"), FormatInt(named) + ", as frame, time and markers have",
                   "Values may belong to other markers than those that get them."});
  }

  std::size_t FramesRead() const { return FramesOf(document_, samples_); }

  // Without blank lines at the end that do not count.
  std::size_t Held() const { return parts_.blank_end ? parts_.FrameCount() : FramesRead(); }

  void CheckFrameCount() {
    const auto held = static_cast<std::int64_t>(Held());
    const std::int64_t announced = document_.NumFrames();
    const auto& announcement = parts_.Value(TRCHeaderValue::kNumFrames);
    const TRCPlace place = announcement ? *announcement : parts_.end;
    if (announced <= 0) return AddFramesUnannounced(place);
    if (held - (layout_.frame_of_tabs ? 1 : 0) == announced || held == announced) return;
    if (IsOutOfProportion(announced, {announced, held, held})) {
      return findings_.Add(
          trc::Rule("trc-frames-too-many"), place,
          {FormatInt(announced), "about " + FormatInt(held) + ", as many as there are",
           "The import is refused, unless --range FROM:TO takes a part of them."});
    }
    findings_.Add(
        trc::Rule("trc-frame-count"), place,
        {FormatInt(announced) + ", as NumFrames says", FormatInt(held) + ", as many as there are",
         EffectOfCount(announced, held), ConvertedCount(announced, held)});
  }

  void AddFramesUnannounced(TRCPlace place) {
    findings_.Add(
        trc::Rule("trc-frames-unannounced"), place,
        {FormatInt(document_.NumFrames()) + ", as NumFrames says", "a whole number of 1 or more",
         "The import refuses the file: its last frame would come before its first. A converted "
         "file has no frames."});
  }

  static std::string FirstFrames(std::int64_t announced, std::int64_t held) {
    const std::string all = CountOf(static_cast<std::size_t>(held), "frame");
    if (announced == 1) return "Only the first of " + all + " is";
    return "Only the first " + FormatInt(announced) + " of " + all + " are";
  }

  static std::string EffectOfCount(std::int64_t announced, std::int64_t held) {
    if (announced <= held) return FirstFrames(announced, held) + " imported.";
    const std::string held_frames = held == 1 ? "frame" : FormatInt(held) + " frames";
    return "Behind the first " + held_frames + " every marker goes to the origin.";
  }

  static std::string ConvertedCount(std::int64_t announced, std::int64_t held) {
    if (announced <= held) return FirstFrames(announced, held) + " written.";
    return "DROPOUT is written for " +
           CountOf(static_cast<std::size_t>(announced - held), "missing frame") + ".";
  }

  // One finding for a marker, however often it drops out.
  void CheckGaps(const TRCMarker& marker, const trc::MarkerSamples& samples, TRCPlace name) {
    const auto gaps = GapsOf(samples);
    if (gaps.empty() || IsTheFrameOfTabs(gaps)) return;
    if (samples.positions == 0) {
      return findings_.Add(trc::Rule("trc-marker-never-seen"), name,
                           {WithoutPosition(marker), "one in every frame",
                            "The import makes an object that stays at the origin."});
    }
    const auto longest =
        std::max_element(gaps.begin(), gaps.end(), [](const auto& left, const auto& right) {
          return left.end - left.begin < right.end - right.begin;
        });
    findings_.Add(trc::Rule("trc-marker-gaps"), parts_.PlaceOfFrame(gaps.front().begin),
                  {DescribeGaps(marker, gaps, *longest), "one in every frame",
                   "The import sets those frames to the origin; a converted file has dropouts."});
  }

  static std::string WithoutPosition(const TRCMarker& marker) {
    if (marker.Name().empty()) return "a marker without a name has no position";
    return "no position of " + Quote(marker.Name());
  }

  // Those in the frames that are held.
  Gaps GapsOf(const trc::MarkerSamples& samples) const {
    Gaps gaps = samples.gaps;
    if (!gaps.empty()) gaps.back().end = std::min(gaps.back().end, Held());
    if (!gaps.empty() && gaps.back().begin >= gaps.back().end) gaps.pop_back();
    return gaps;
  }

  bool IsTheFrameOfTabs(const Gaps& gaps) const {
    return layout_.frame_of_tabs && gaps.size() == 1 && gaps[0].begin == 0 && gaps[0].end == 1;
  }

  std::string DescribeGaps(const TRCMarker& marker, const Gaps& gaps,
                           const FrameGap& longest) const {
    std::size_t missing = 0;
    for (const FrameGap& gap : gaps) missing += gap.end - gap.begin;
    std::string text = WithoutPosition(marker) + " in " + CountOf(missing, "frame");
    if (gaps.size() == 1) return text + " from here on";
    return text + ": " + CountOf(gaps.size(), "gap") + ", the longest of " +
           CountOf(longest.end - longest.begin, "frame") + " from line " +
           FormatInt(static_cast<std::int64_t>(parts_.PlaceOfFrame(longest.begin).line)) + " on";
  }

  const TRCDocument& document_;
  const trc::TrcSamples& samples_;
  const std::optional<Subject>& subject_;
  const trc::TrcLayout& layout_;
  const trc::TrcParts& parts_;
  FindingList& findings_;
};

// By TextFlaw, but for the last ones, which no marker file has.
constexpr std::array<FindingRule, 3> kFlawRules = {
    trc::Rule("trc-empty"), trc::Rule("trc-encoding"), trc::Rule("trc-line-ends")};

// The pieces of one long line may pass for the lines of a marker file.
void NameWhatItIs(std::string_view start, FindingList& findings) {
  if (const auto kind = FindOtherKind(start, ContentKind::kTrc)) {
    return NameKindAlone(*kind, trc::Rule("trc-other-kind"), "a TRC file", WordsFor(*kind).advice,
                         findings);
  }
  const bool is_refused = findings.Count(FindingSeverity::kError) > 0;
  if (start.starts_with('"') && is_refused) {
    return findings.ReplaceAll(
        trc::Rule("trc-cells-quoted"), {1, 1},
        {"cells in quotation marks", "cells without them",
         "The import refuses the file; what else is odd about it is not told."});
  }
  const auto flaw = FindTextFlaw(start);
  if (!flaw) return;
  const std::string effect =
      is_refused ? "The import refuses the file" : "The import makes markers of what holds none";
  NameFlawAlone(*flaw, kFlawRules[static_cast<std::size_t>(*flaw)],
                effect + "; what else is odd about it is not told.", findings);
}

// Nothing where the samples are needed to tell what moves, and are left out.
std::optional<CheckedFile> Check(const std::string& file, ByteSource& source, TRCSamples kept,
                                 TRCDocument& document, trc::TrcSamples& samples) {
  CheckedFile checked{file, "TRC", {}, {}};
  StartedSource started(source);
  trc::TrcParts parts;
  trc::TrcFindingsObserver observer(document, parts, samples, checked.findings);
  const std::string message = document.ReadFrom(started, false, &observer, kept);
  observer.Finish();
  if (observer.HasRefused()) checked.refusal = message;
  if (checked.refusal.empty()) RequireRead(message);
  RequireSound(FindFault(document));
  if (checked.refusal.empty()) {
    const bool is_measured = samples.HasMeasuredSubject();
    if (!is_measured && kept == TRCSamples::kLeftOut) return std::nullopt;
    const auto subject = is_measured ? samples.MeasuredSubject() : MeasureSubject(document);
    WholeFile(document, samples, subject, parts, checked.findings).Check();
  }
  NameWhatItIs(started.Start(), checked.findings);
  checked.contents = CountOf(document.MarkerCount(), "marker") + ", " +
                     CountOf(FramesOf(document, samples), "frame");
  return checked;
}

}  // namespace

CheckedFile CheckTrc(const std::string& file, ByteSource& source, TRCDocument& document) {
  trc::TrcSamples samples;
  return *Check(file, source, TRCSamples::kKept, document, samples);
}

LookedOverTrc LookOverTrc(const std::string& file, const SourceOpener& open,
                          TRCDocument& document) {
  for (const TRCSamples kept : {TRCSamples::kLeftOut, TRCSamples::kKept}) {
    const std::unique_ptr<ByteSource> source = open();
    trc::TrcSamples samples;
    auto checked = Check(file, *source, kept, document, samples);
    if (checked) return {*std::move(checked), std::move(samples)};
  }
  return {};
}

}  // namespace orvane
