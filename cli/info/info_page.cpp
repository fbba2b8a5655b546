#include <algorithm>
#include <string_view>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/info/info_report.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"

namespace cli {
namespace {

using orvane::Bounds;
using orvane::FormatDouble;
using orvane::FormatInt;
using orvane::HierarchyEntry;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::ListUnattached;
using orvane::MotionSummary;

constexpr int kDecimals = 3;

// Deeper segments are not indented any further, so that a chain of any depth stays readable.
constexpr std::size_t kDeepestIndent = 30;

constexpr std::size_t kLabelWidth = 16;
constexpr std::size_t kNarrowestNames = 16;
constexpr std::size_t kNumberWidth = 12;

std::string UnitName(const HtrDocument& document) {
  return std::string(orvane::CalibrationUnitsName(document.GetCalibrationUnits()));
}

void PrintLine(std::ostream& out, std::string_view label, const std::string& value) {
  out << "  " << PadRight(std::string(label), kLabelWidth) << value << '\n';
}

std::string FramesFound(const HtrDocument& document, const MotionSummary& motion) {
  if (motion.most_frames == 0) return "none found";
  const auto most = static_cast<std::int64_t>(motion.most_frames);
  std::string found = FormatInt(most) + " found";
  if (motion.fewest_frames != motion.most_frames) {
    found = FormatInt(static_cast<std::int64_t>(motion.fewest_frames)) + " to " + found;
  }
  const std::int64_t first = document.GetStartFrame();
  return found + ", numbered " + NumbersOf(orvane::FrameSpan{first, first + most - 1});
}

std::string Frames(const InfoReport& report) {
  const std::string announced = FormatInt(report.document.GetNumFrames()) + " announced";
  return report.motion ? announced + ", " + FramesFound(report.document, *report.motion)
                       : announced;
}

void PrintBounds(const InfoReport& report, const Bounds& bounds, std::ostream& out) {
  constexpr std::string_view kAxes = "XYZ";
  for (std::size_t axis = 0; axis < kAxes.size(); ++axis) {
    PrintLine(out, axis == 0 ? "Bounding box" : "",
              std::string(1, kAxes[axis]) +
                  PadLeft(FormatDouble(bounds.least[axis], kDecimals), kNumberWidth) + " to" +
                  PadLeft(FormatDouble(bounds.most[axis], kDecimals), kNumberWidth) + " " +
                  UnitName(report.document));
  }
}

void PrintHeader(const InfoReport& report, std::ostream& out) {
  const HtrDocument& document = report.document;
  PrintLine(out, "Segments", FormatInt(document.GetNumSegments()));
  PrintLine(out, "Lengths", UnitName(document));
  PrintLine(out, "Angles", std::string(orvane::RotationUnitsName(document.GetRotationUnits())));
  PrintLine(out, "Frame rate", FramesPerSecond(document.GetDataFrameRate()));
  PrintLine(out, "Frames", Frames(report));
  if (!report.motion) return;
  if (report.motion->length_seconds) {
    PrintLine(out, "Length", FormatDouble(*report.motion->length_seconds, kDecimals) + " s");
  }
  if (report.motion->subject) {
    PrintLine(out, "Subject",
              DescribeSubject(*report.motion->subject, document.GetCalibrationUnits(),
                              report.motion->length_seconds));
  }
  if (report.motion->bounds) PrintBounds(report, *report.motion->bounds, out);
}

std::string IndentedName(const HierarchyEntry& entry) {
  const std::string indent(2 * std::min(entry.depth, kDeepestIndent), ' ');
  std::string name = indent + Printable(entry.segment->GetName());
  if (entry.depth > kDeepestIndent) {
    name += " (depth " + FormatInt(static_cast<std::int64_t>(entry.depth)) + ")";
  }
  return name;
}

void PrintSegment(const std::string& name, const HtrSegment& segment, std::size_t width,
                  std::ostream& out) {
  out << "  " << PadRight(name, width)
      << PadLeft(FormatDouble(segment.GetBoneLength(), kDecimals), kNumberWidth) << '\n';
}

void PrintTree(const InfoReport& report, std::ostream& out) {
  std::size_t width = kNarrowestNames;
  for (const HierarchyEntry& entry : report.hierarchy) {
    width = std::max(width, std::min(Width(IndentedName(entry)), kWidestNames));
  }
  out << "\nSegments and their lengths in " << UnitName(report.document) << '\n';
  for (const HierarchyEntry& entry : report.hierarchy) {
    PrintSegment(IndentedName(entry), *entry.segment, width, out);
  }
  const auto unattached = ListUnattached(report.document, report.hierarchy);
  if (unattached.empty()) return;
  out << "\nSegments that hang from no root\n";
  for (const HtrSegment* segment : unattached) {
    PrintSegment(Printable(segment->GetName()), *segment, width, out);
  }
}

}  // namespace

void PrintInfoPage(const InfoReport& report, std::ostream& out) {
  out << Printable(report.file) << '\n';
  PrintHeader(report, out);
  PrintTree(report, out);
}

}  // namespace cli
