#include "examples/marker_walk_text.h"

#include <cmath>
#include <cstddef>
#include <optional>

#include "examples/markers.h"
#include "formats/text/numbers.h"

namespace examples {
namespace {

constexpr int kFrames = 120;
constexpr int kFramesPerSecond = 60;
constexpr const char* kLineEnd = "\r\n";

std::string Count(std::size_t number) {
  return orvane::FormatInt(static_cast<std::int64_t>(number));
}

// Three decimals, and no minus before a zero.
std::string Number(double value) {
  return orvane::FormatDouble(std::round(value * 1e3) / 1e3 + 0.0, 3);
}

std::string HeaderText() {
  const std::string frames = orvane::FormatInt(kFrames);
  const std::string rate = orvane::FormatInt(kFramesPerSecond);
  return std::string("PathFileType\t4\t(X/Y/Z)\twalk.trc") + kLineEnd +
         "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
         "OrigNumFrames" +
         kLineEnd + rate + "\t" + rate + "\t" + frames + "\t" + Count(Markers().size()) + "\tmm\t" +
         rate + "\t1\t" + frames + kLineEnd;
}

std::string ColumnNames() {
  std::string names = "Frame#\tTime\t";
  std::string axes = "\t";
  for (std::size_t index = 0; index < Markers().size(); ++index) {
    names += std::string(Markers()[index].capture_name) + "\t\t\t";
    for (const char* axis : {"\tX", "\tY", "\tZ"}) axes += axis + Count(index + 1);
  }
  return names + kLineEnd + axes + "\t" + kLineEnd + kLineEnd;
}

std::string Columns(const std::optional<Vector3>& position) {
  if (!position) return "\t\t\t";
  return "\t" + Number(position->x()) + "\t" + Number(position->y()) + "\t" + Number(position->z());
}

std::string FrameText(int index) {
  const double time_s = static_cast<double>(index) / kFramesPerSecond;
  const Pose pose = WalkAt(time_s);
  std::string text = orvane::FormatInt(index + 1) + "\t" + Number(time_s);
  for (const Marker& marker : Markers()) text += Columns(PositionOf(marker, pose));
  return text + "\t" + kLineEnd;
}

}  // namespace

std::string MarkerWalkText() {
  std::string text = HeaderText() + ColumnNames();
  for (int index = 0; index < kFrames; ++index) text += FrameText(index);
  return text;
}

std::string MarkerMappingText() {
  std::string text;
  for (const Marker& marker : Markers()) {
    if (marker.standard_name.empty()) continue;
    text += std::string(marker.standard_name) + "\t" + std::string(marker.capture_name) + "\t" +
            kLineEnd;
  }
  return text;
}

}  // namespace examples
