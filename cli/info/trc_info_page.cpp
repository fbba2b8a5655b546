#include <algorithm>
#include <string_view>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/info/trc_info.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"

namespace cli {
namespace {

using orvane::Bounds;
using orvane::Coverage;
using orvane::FormatDouble;
using orvane::FormatInt;
using orvane::TrcMarkerSummary;

constexpr int kDecimals = 3;
constexpr std::size_t kLabelWidth = 16;
constexpr std::size_t kNarrowestNames = 16;
constexpr std::size_t kNumberWidth = 12;

std::string Count(std::size_t number) { return FormatInt(static_cast<std::int64_t>(number)); }

void PrintLine(std::ostream& out, std::string_view label, const std::string& value) {
  out << "  " << PadRight(std::string(label), kLabelWidth) << value << '\n';
}

std::string UnitName(const orvane::TRCDocument& document) {
  return std::string(orvane::CalibrationUnitsName(static_cast<std::uint32_t>(document.Units())));
}

std::string Rate(std::int32_t rate, const std::string& text) {
  const std::string read = FramesPerSecond(rate);
  return text.empty() ? read : read + " (the whole part of " + Printable(text) + ")";
}

std::string Frames(const TrcInfoReport& report) {
  const std::string announced = FormatInt(report.document.NumFrames()) + " announced, ";
  const std::size_t found = report.summary.frames;
  if (found == 0) return announced + "none found";
  const std::int64_t first = report.document.FirstFrame();
  return announced + Count(found) + " found, numbered " +
         NumbersOf(orvane::FrameSpan{first, first + static_cast<std::int64_t>(found) - 1});
}

void PrintBounds(const TrcInfoReport& report, std::ostream& out) {
  if (!report.summary.bounds) return;
  const Bounds& bounds = *report.summary.bounds;
  constexpr std::string_view kAxes = "XYZ";
  for (std::size_t axis = 0; axis < kAxes.size(); ++axis) {
    PrintLine(out, axis == 0 ? "Bounding box" : "",
              std::string(1, kAxes[axis]) +
                  PadLeft(FormatDouble(bounds.least[axis], kDecimals), kNumberWidth) + " to" +
                  PadLeft(FormatDouble(bounds.most[axis], kDecimals), kNumberWidth) + " " +
                  UnitName(report.document));
  }
}

// "11 to 28, 40, and 3 more": the frames of the longest gaps; empty without any.
std::string Gaps(const TrcMarkerSummary& marker, std::int64_t first_frame) {
  constexpr std::size_t kMostGaps = 3;
  std::string text;
  for (const auto& [begin, end] : LongestGaps(marker, kMostGaps)) {
    const std::int64_t first = first_frame + static_cast<std::int64_t>(begin);
    const std::int64_t last = first_frame + static_cast<std::int64_t>(end) - 1;
    text += (text.empty() ? "" : ", ") + NumbersOf(orvane::FrameSpan{first, last});
  }
  const std::size_t count = marker.gaps.size();
  return count > kMostGaps ? text + ", and " + Count(count - kMostGaps) + " more" : text;
}

void PrintMarkers(const TrcInfoReport& report, std::ostream& out) {
  std::size_t width = kNarrowestNames;
  for (const orvane::TRCMarker& marker : report.document.markers()) {
    width = std::max(width, std::min(Width(Printable(marker.Name())), kWidestNames));
  }
  out << "\nMarkers, the part of the frames that they are present in, their longest gap in frames, "
         "and "
         "where the three longest are\n";
  for (std::size_t index = 0; index < report.summary.markers.size(); ++index) {
    const TrcMarkerSummary& summary = report.summary.markers[index];
    const orvane::TRCMarker& marker = *report.document.MarkerAt(index);
    const std::string gaps = Gaps(summary, report.document.FirstFrame());
    const std::string percent = FormatDouble(100 * Coverage(summary, report.summary.frames), 1);
    out << "  " << PadRight(Printable(marker.Name()), width) << PadLeft(percent, kNumberWidth)
        << " %" << PadLeft(Count(summary.longest_gap), kNumberWidth) << (gaps.empty() ? "" : "  ")
        << gaps << '\n';
  }
}

}  // namespace

void PrintInfoPage(const TrcInfoReport& report, std::ostream& out) {
  const orvane::TRCDocument& document = report.document;
  out << Printable(report.file) << '\n';
  PrintLine(out, "Markers", FormatInt(document.MarkerCount()));
  PrintLine(out, "Lengths", UnitName(document));
  PrintLine(out, "Data rate", Rate(document.DataRate(), report.data_rate_text));
  PrintLine(out, "Camera rate", Rate(document.CameraRate(), report.camera_rate_text));
  PrintLine(out, "Frames", Frames(report));
  if (report.summary.length_seconds) {
    PrintLine(out, "Length", FormatDouble(*report.summary.length_seconds, kDecimals) + " s");
  }
  if (report.subject) {
    PrintLine(out, "Subject",
              DescribeSubject(*report.subject, static_cast<std::uint32_t>(document.Units()),
                              report.summary.length_seconds));
  }
  PrintBounds(report, out);
  PrintMarkers(report, out);
}

}  // namespace cli
