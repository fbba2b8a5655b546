#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/compare/comparison_text.h"
#include "cli/compare/motion_report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::DifferentParent;
using orvane::FormatDouble;
using orvane::FormatInt;
using orvane::MotionComparison;
using orvane::MotionDifference;
using orvane::OnlyFrames;
using orvane::OnlySegment;
using orvane::Spread;
using orvane::StructureComparison;
using orvane::StructureDifferences;

std::string Parent(const std::string& name) {
  return name.empty() ? "no parent" : "parent " + Printable(name);
}

std::string WhatIsCompared(const MotionReport& report) {
  const StructureComparison& structure = report.structure;
  if (structure.pairs.empty()) return "nothing, as no segment is in both files under one parent";
  const auto& differences = report.motion.segments;
  const auto compared = static_cast<std::size_t>(
      std::count_if(differences.begin(), differences.end(),
                    [](const auto& each) { return each.position_mm.count > 0; }));
  const std::string segments = Count(compared, "segment");
  if (structure.at_rest) return segments + " in the base position, as there are no frames";
  if (!structure.common_frames) return "nothing, as no frame is in both files";
  if (compared == 0) return "nothing, as no segment has a frame in both files";
  return segments + " in " + FramesText(*structure.common_frames);
}

void PrintRow(const std::string& name, std::size_t width, const MotionDifference& difference,
              std::ostream& out) {
  out << "  " << PadRight(name, width);
  for (const Spread* spread : {&difference.position_mm, &difference.orientation_deg}) {
    out << PadLeft(FormatDouble(spread->largest), kNumberWidth)
        << PadLeft(FormatDouble(spread->Mean()), kNumberWidth);
  }
  out << FrameCell(difference.first_beyond) << '\n';
}

void PrintSegments(const MotionReport& report, std::ostream& out) {
  std::vector<std::string> names;
  for (std::size_t pair = 0; pair < report.structure.pairs.size(); ++pair) {
    names.push_back(Printable(report.NameOf(pair)));
  }
  const std::size_t width = WidthOf(names);
  out << "\n  " << PadRight("Segment", width);
  for (const char* heading : {"largest mm", "mean mm", "largest deg", "mean deg", "first beyond"}) {
    out << PadLeft(heading, kNumberWidth);
  }
  out << '\n';
  for (std::size_t pair = 0; pair < names.size(); ++pair) {
    const MotionDifference& difference = report.motion.segments[pair];
    if (difference.position_mm.count > 0) PrintRow(names[pair], width, difference, out);
  }
}

void PrintStructure(const MotionReport& report, std::ostream& out) {
  const StructureDifferences& differences = report.structure.differences;
  if (!differences.Any()) return;
  out << "\nDifferent structure\n";
  if (differences.frame_rate) {
    out << "  frame rate " << FormatInt(report.a.GetDataFrameRate()) << " in A, "
        << FormatInt(report.b.GetDataFrameRate()) << " in B\n";
  }
  for (const OnlySegment& segment : differences.segments) {
    out << "  " << Printable(segment.name) << ": only in " << FileLetter(segment.file) << '\n';
  }
  for (const DifferentParent& parent : differences.parents) {
    out << "  " << Printable(parent.name) << ": " << Parent(parent.in_a) << " in A, "
        << Parent(parent.in_b) << " in B\n";
  }
  for (const OnlyFrames& only : differences.frames) {
    out << "  " << (only.segment.empty() ? "" : Printable(only.segment) + ": ")
        << FramesText(only.frames) << " only in " << FileLetter(only.file) << '\n';
  }
}

void PrintLargest(const MotionReport& report, const char* label, const Spread& spread,
                  std::size_t pair, const char* unit, std::ostream& out) {
  out << "  " << PadRight(label, kNarrowestNames) << FormatDouble(spread.largest) << " " << unit
      << " at the most, " << FormatDouble(spread.Mean()) << " on average";
  if (spread.largest > 0.0) {
    out << "; " << Printable(report.NameOf(pair));
    if (!report.structure.at_rest) out << " in frame " << FormatInt(spread.largest_frame);
  }
  out << '\n';
}

std::string Verdict(const MotionReport& report) {
  const auto& beyond = report.motion.overall.first_beyond;
  if (!beyond && !report.structure.differences.Any()) return "kept";
  if (!beyond) return "kept, but the structure differs";
  const std::string segment = Printable(report.NameOf(report.motion.beyond_pair));
  if (report.structure.at_rest) return "exceeded by " + segment;
  return "exceeded, first in frame " + FormatInt(*beyond) + " by " + segment;
}

void PrintOverall(const MotionReport& report, std::ostream& out) {
  const MotionComparison& motion = report.motion;
  out << "\nDifference of " << WhatIsCompared(report) << '\n';
  if (motion.overall.position_mm.count == 0) return;
  PrintLargest(report, "Positions", motion.overall.position_mm, motion.position_pair, "mm", out);
  PrintLargest(report, "Orientations", motion.overall.orientation_deg, motion.orientation_pair,
               "degrees", out);
  out << "  " << PadRight("Tolerance", kNarrowestNames)
      << orvane::FormatShortest(report.tolerance.mm) << " mm and "
      << orvane::FormatShortest(report.tolerance.deg) << " degrees: " << Verdict(report) << '\n';
}

}  // namespace

void PrintComparison(const MotionReport& report, std::ostream& out) {
  out << FileLines(report.file_a, report.file_b);
  if (report.motion.overall.position_mm.count > 0) PrintSegments(report, out);
  PrintStructure(report, out);
  PrintOverall(report, out);
}

}  // namespace cli
