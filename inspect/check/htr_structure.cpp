#include "inspect/check/htr_structure.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "formats/htr/sections.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/check/htr_rules.h"
#include "inspect/check/plausibility.h"
#include "inspect/counts/frame_counts.h"
#include "inspect/summary/subject_measure.h"

namespace orvane::htr {
namespace {

class Structure {
 public:
  Structure(const HtrDocument& document, const HtrParts& parts, FindingList& findings)
      : document_(document), parts_(parts), findings_(findings) {}

  void Check() {
    CheckHeader();
    CheckScaleFactor();
    CheckEnd();
    if (document_.segments().empty()) return AddSegmentsMissing();
    CheckBasePosition();
    CheckMotion();
    if (parts_.base_sections == 0) return;
    CheckLinks();
    CheckRoots();
    CheckCircles();
    CheckSubject();
    CheckAngles();
  }

 private:
  void CheckHeader();
  void CheckScaleFactor();
  void CheckEnd();
  void AddSegmentsMissing();
  void CheckBasePosition();
  void CheckBaseLines();
  void CheckMotion();
  void CheckSubject();
  void CheckUpAxis(const Subject& subject);
  void CheckFarPositions();
  void CheckAngles();
  void AddFramesUnannounced();
  void CheckFrames(const SegmentLines& segment, std::int64_t expected);
  void CheckLinks();
  void CheckRoots();
  void CheckCircles();
  void AddCircle(std::size_t first, const std::vector<std::size_t>& parents);

  const HtrDocument& document_;
  const HtrParts& parts_;
  FindingList& findings_;
};

void Structure::CheckHeader() {
  if (!parts_.header) {
    return findings_.Add(
        Rule("htr-header-missing"), FindingPlace{1, 1},
        {"no [Header]", "[Header] first",
         "Nothing is announced: lengths are millimeters, angles degrees, and the rate is 60."});
  }
  for (std::size_t index = 0; index < kKeywords.size(); ++index) {
    if (parts_.values[index]) continue;
    const Keyword& keyword = kKeywords[index];
    findings_.Add(keyword.matters ? Rule("htr-keyword-missing") : Rule("htr-keyword-left-out"),
                  *parts_.header,
                  {"no " + std::string(keyword.name),
                   std::string(keyword.name) + " with " + std::string(keyword.values),
                   std::string(keyword.without)});
  }
}

void Structure::CheckScaleFactor() {
  const auto& value = parts_.Value("ScaleFactor");
  if (!value || document_.GetScaleFactor() == 1.0) return;
  findings_.Add(Rule("htr-scale-factor"), *value,
                {Quote(value->text), "1",
                 "Nothing is multiplied by it; the import warns of it. --scale multiplies."});
}

void Structure::CheckEnd() {
  if (parts_.has_end) return;
  findings_.Add(
      Rule("htr-end-missing"), parts_.end,
      {"the end of the file", "[EndOfFile]", "Nothing is lost, unless the file was cut short."});
}

void Structure::AddSegmentsMissing() {
  findings_.Add(Rule("htr-segments-missing"), parts_.hierarchy.value_or(parts_.end),
                {"no segments", "their lines in [SegmentNames&Hierarchy]",
                 "There is nothing to import. Is it an HTR file?"});
}

void Structure::CheckBasePosition() {
  if (!parts_.base_position) {
    return findings_.Add(
        Rule("htr-base-missing"), parts_.motion.value_or(parts_.end),
        {"no [BasePosition] before this", "[BasePosition] between the hierarchy and the motion",
         "No segment has a parent, none is a root, and angles are not converted: there is "
         "nothing to import."});
  }
  if (parts_.motion && parts_.motion->line < parts_.base_position->line) {
    findings_.Add(
        Rule("htr-base-late"), *parts_.base_position,
        {"[BasePosition] behind motion", "[BasePosition] between the hierarchy and the motion",
         "Angles that stand before it are taken as they are, as radians."});
  }
  CheckBaseLines();
}

void Structure::CheckBaseLines() {
  for (const SegmentLines& segment : parts_.segments) {
    if (segment.base_section != 0) continue;
    findings_.Add(
        Rule("htr-base-line-missing"), segment.name,
        {"no line of " + Quote(segment.name.text) + " in [BasePosition]", "one for every segment",
         "It stands at its parent's origin, unturned, and has no length."});
  }
}

void Structure::CheckMotion() {
  if (document_.GetNumFrames() == 0) return AddFramesUnannounced();
  const auto frames = CountFrames(document_);
  std::int64_t expected = frames.announced;
  if (IsOutOfProportion(frames.announced, frames)) {
    findings_.Add(Rule("htr-frames-too-many"), parts_.PlaceOfValue("NumFrames"),
                  {FormatInt(frames.announced),
                   "about " + FormatInt(frames.most_held) + ", as many as there are",
                   "The import is refused, unless --range FROM:TO takes a part of them."});
    expected = frames.most_held;
  }
  for (const SegmentLines& segment : parts_.segments) CheckFrames(segment, expected);
}

void Structure::CheckSubject() {
  const std::uint32_t unit = document_.GetCalibrationUnits();
  const auto subject = MeasureSubject(document_);
  if (auto words = WordsOfOddSize(subject, unit)) {
    findings_.Add(Rule("htr-size"), parts_.PlaceOfValue("CalibrationUnits"), std::move(*words));
  } else {
    CheckFarPositions();
  }
  if (subject) CheckUpAxis(*subject);
}

// A header that says so is told of by itself.
void Structure::CheckUpAxis(const Subject& subject) {
  if (!parts_.motion || document_.GetGlobalAxisofGravity() == kAxisZ) return;
  if (!SeemsToStandAlongZ(subject)) return;
  findings_.Add(
      Rule("htr-up-axis"), *parts_.motion,
      {"heights along Z: " + DescribeHeights(subject.bounds, document_.GetCalibrationUnits()),
       "heights along Y", "The file is taken as Y up: what stands lies on its side."});
}

// One finding for a segment.
void Structure::CheckFarPositions() {
  const std::uint32_t unit = document_.GetCalibrationUnits();
  const Horizon horizon(unit);
  for (std::size_t index = 0; index < parts_.segments.size(); ++index) {
    const HtrSegment& segment = document_.segments()[index];
    for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
      const Vector3 offset = segment.GetFrameTranslation(frame);
      if (!horizon.Hides(offset.x(), offset.y(), offset.z())) continue;
      findings_.Add(
          Rule("htr-position-far"), *parts_.segments[index].motion,
          WordsOfOutOfSight(segment.GetName(), {offset.x(), offset.y(), offset.z()}, unit));
      break;
    }
  }
}

// Two turns in either direction are more than any joint makes between two frames of a file.
void Structure::CheckAngles() {
  constexpr double kMostTurned = 4.0 * std::numbers::pi;
  if (document_.GetRotationUnits() == kDegrees) return;
  double largest = 0.0;
  for (const HtrSegment& segment : document_.segments()) {
    for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
      const EulerRotation turned = segment.GetFrameRotation(frame);
      largest = std::max({largest, std::abs(turned[0]), std::abs(turned[1]), std::abs(turned[2])});
    }
  }
  if (largest <= kMostTurned || !std::isfinite(largest)) return;
  findings_.Add(Rule("htr-angles-large"), parts_.PlaceOfValue("RotationUnits"),
                {FormatDouble(largest, 1), "angles in radians",
                 "They are taken as radians all the same; are they degrees?"});
}

void Structure::AddFramesUnannounced() {
  const auto& value = parts_.Value("NumFrames");
  const FindingPlace header = parts_.header.value_or(FindingPlace{1, 1});
  findings_.Add(
      Rule("htr-frames-unannounced"), value ? PlaceOf(*value) : header,
      {value ? Quote(value->text) : "no NumFrames", "a whole number of 1 or more for NumFrames",
       "The import refuses the file: its last frame would come before its first."});
}

// `expected` is what the header announces, or what the others hold when it is far from that.
void Structure::CheckFrames(const SegmentLines& segment, std::int64_t expected) {
  if (!segment.motion) {
    return findings_.Add(
        Rule("htr-motion-missing"), segment.name,
        {"no motion section of " + Quote(segment.name.text), "one for every segment",
         "In every frame the segment goes to its parent's origin, unturned."});
  }
  const std::size_t announced = document_.GetNumFrames();
  if (static_cast<std::int64_t>(segment.frames) == expected || segment.frames == announced) return;
  const std::string number = FormatInt(static_cast<std::int64_t>(announced));
  findings_.Add(Rule("htr-frame-count"), *segment.motion,
                {CountOf(segment.frames, "frame"), number + ", as NumFrames says",
                 segment.frames < announced
                     ? "In the missing frames the segment goes to its parent's origin, unturned."
                     : "Only " + number + (announced == 1 ? " is imported." : " are imported.")});
}

void Structure::CheckLinks() {
  for (std::size_t index = parts_.linked_segments; index < parts_.segments.size(); ++index) {
    const KeptCell& name = parts_.segments[index].name;
    findings_.Add(
        Rule("htr-segment-unlinked"), name,
        {Quote(name.text) + " behind [BasePosition]", "the hierarchy before [BasePosition]",
         "The segment has no parent: a new skeleton goes without it and its children."});
  }
}

void Structure::CheckRoots() {
  const KeptCell* first = nullptr;
  for (std::size_t index = 0; index < parts_.linked_segments; ++index) {
    const SegmentLines& segment = parts_.segments[index];
    if (segment.parent.text != orvane::kGlobalParent) continue;
    if (first == nullptr) {
      first = &segment.name;
      continue;
    }
    findings_.Add(
        Rule("htr-root-second"), segment.name,
        {"a second root, " + Quote(segment.name.text),
         "one root; line " + FormatInt(static_cast<std::int64_t>(first->line)) + " has it",
         "A new skeleton goes without it and its children."});
  }
  if (first != nullptr) return;
  findings_.Add(Rule("htr-root-missing"), parts_.hierarchy.value_or(parts_.end),
                {"no root", "a segment with the parent GLOBAL",
                 "There is nothing that a new skeleton could start from."});
}

// Follows every segment to its root, each only as far as no walk before it has come.
void Structure::CheckCircles() {
  const std::size_t count = document_.segments().size();
  std::vector<std::size_t> parents;  // `count` stands for none
  parents.reserve(count);
  for (const HtrSegment& segment : document_.segments()) {
    const HtrSegment* const parent = segment.GetParent();
    parents.push_back(parent == nullptr ? count : document_.IndexOf(*parent).value_or(count));
  }
  std::vector<std::size_t> walks(count, count);  // the walk that came by
  for (std::size_t start = 0; start < count; ++start) {
    std::size_t at = start;
    for (; at != count && walks[at] == count; at = parents[at]) walks[at] = start;
    if (at != count && walks[at] == start) AddCircle(at, parents);
  }
}

// `first` is one of the circle; it is told from the one that stands first in the file.
void Structure::AddCircle(std::size_t first, const std::vector<std::size_t>& parents) {
  std::size_t lowest = first;
  std::size_t length = 1;
  for (std::size_t at = parents[first]; at != first; at = parents[at]) {
    if (at < lowest) lowest = at;
    ++length;
  }
  const SegmentLines& segment = parts_.segments[lowest];
  findings_.Add(Rule("htr-parent-circle"), segment.parent,
                {Quote(segment.name.text) + " in a circle of " + CountOf(length, "segment"),
                 "parents that lead to a root",
                 "A new skeleton goes without its segments and what hangs from them."});
}

}  // namespace

void CheckStructure(const HtrDocument& document, const HtrParts& parts, FindingList& findings) {
  assert(parts.segments.size() == document.segments().size());
  Structure(document, parts, findings).Check();
}

}  // namespace orvane::htr
