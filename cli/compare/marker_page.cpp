#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/compare/comparison_text.h"
#include "cli/compare/marker_report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::ComparedMarker;
using orvane::FormatDouble;
using orvane::FormatInt;
using orvane::FramesOfOne;
using orvane::MarkerComparison;
using orvane::MarkerDifference;
using orvane::OnlyMarker;

std::string CountCell(std::size_t count) {
  return PadLeft(FormatInt(static_cast<std::int64_t>(count)), kNumberWidth);
}

std::string DistanceCell(const MarkerDifference& difference, double distance_mm) {
  return PadLeft(difference.distance_mm.count > 0 ? FormatDouble(distance_mm) : "-", kNumberWidth);
}

void PrintMarkers(const MarkerComparison& comparison, std::ostream& out) {
  std::vector<std::string> names;
  for (const ComparedMarker& marker : comparison.markers) names.push_back(Printable(marker.name));
  const std::size_t width = WidthOf(names);
  out << "\n  " << PadRight("Marker", width);
  for (const char* heading : {"largest mm", "mean mm", "only in A", "only in B", "first beyond"}) {
    out << PadLeft(heading, kNumberWidth);
  }
  out << '\n';
  for (std::size_t index = 0; index < names.size(); ++index) {
    const MarkerDifference& difference = comparison.markers[index].difference;
    out << "  " << PadRight(names[index], width)
        << DistanceCell(difference, difference.distance_mm.largest)
        << DistanceCell(difference, difference.distance_mm.Mean())
        << CountCell(difference.only_in_a) << CountCell(difference.only_in_b)
        << FrameCell(difference.first_beyond) << '\n';
  }
}

void PrintContents(const MarkerReport& report, std::ostream& out) {
  const MarkerComparison& comparison = report.comparison;
  if (comparison.HoldTheSame()) return;
  out << "\nDifferent contents\n";
  if (comparison.frame_rate_differs) {
    out << "  frame rate " << FormatInt(report.a.DataRate()) << " in A, "
        << FormatInt(report.b.DataRate()) << " in B\n";
  }
  for (const OnlyMarker& marker : comparison.only_markers) {
    out << "  " << Printable(marker.name) << ": only in " << FileLetter(marker.file) << '\n';
  }
  for (const FramesOfOne& only : comparison.only_frames) {
    out << "  " << FramesText(only.frames) << " only in " << FileLetter(only.file) << '\n';
  }
}

std::string WhatIsCompared(const MarkerComparison& comparison) {
  if (comparison.markers.empty()) return "nothing, as no marker is in both files";
  if (!comparison.frames) return "nothing, as no frame is in both files";
  return Count(comparison.markers.size(), "marker") + " in " + FramesText(*comparison.frames);
}

std::string Distances(const MarkerComparison& comparison) {
  const orvane::Spread& distance_mm = comparison.overall.distance_mm;
  if (distance_mm.count == 0) return "no sample is in both files";
  std::string text = FormatDouble(distance_mm.largest) + " mm at the most, " +
                     FormatDouble(distance_mm.Mean()) + " on average";
  if (distance_mm.largest > 0.0) {
    text += "; " + Printable(comparison.markers[comparison.farthest].name) + " in frame " +
            FormatInt(distance_mm.largest_frame);
  }
  return text;
}

std::string Verdict(const MarkerComparison& comparison) {
  const auto& beyond = comparison.overall.first_beyond;
  if (!beyond) return comparison.HoldTheSame() ? "kept" : "kept, but the contents differ";
  return "exceeded, first in frame " + FormatInt(*beyond) + " by " +
         Printable(comparison.markers[comparison.beyond].name);
}

void PrintOverall(const MarkerReport& report, std::ostream& out) {
  const MarkerComparison& comparison = report.comparison;
  out << "\nDifference of " << WhatIsCompared(comparison) << '\n';
  if (comparison.markers.empty() || !comparison.frames) return;
  const MarkerDifference& overall = comparison.overall;
  out << "  " << PadRight("Positions", kNarrowestNames) << Distances(comparison) << '\n';
  out << "  " << PadRight("Gaps", kNarrowestNames) << Count(overall.only_in_a, "sample")
      << " measured in A alone, " << FormatInt(static_cast<std::int64_t>(overall.only_in_b))
      << " in B alone\n";
  out << "  " << PadRight("Tolerance", kNarrowestNames)
      << orvane::FormatShortest(report.tolerance_mm) << " mm: " << Verdict(comparison) << '\n';
}

}  // namespace

void PrintComparison(const MarkerReport& report, std::ostream& out) {
  const MarkerComparison& comparison = report.comparison;
  out << FileLines(report.file_a, report.file_b);
  if (!comparison.markers.empty() && comparison.frames) PrintMarkers(comparison, out);
  PrintContents(report, out);
  PrintOverall(report, out);
}

}  // namespace cli
