#include "examples/marker_walk_text.h"

#include "examples/marker_table_text.h"
#include "examples/markers.h"

namespace examples {
namespace {

constexpr int kFrames = 120;

}  // namespace

std::string MarkerWalkText() {
  MarkerTable table;
  table.file_name = "walk.trc";
  for (const Marker& marker : Markers()) table.names.emplace_back(marker.capture_name);
  for (int index = 0; index < kFrames; ++index) {
    const Pose pose = WalkAt(static_cast<double>(index) / kFramesPerSecond);
    auto& frame = table.frames.emplace_back();
    for (const Marker& marker : Markers()) frame.push_back(PositionOf(marker, pose));
  }
  return TextOf(table);
}

std::string MarkerMappingText() {
  std::string text;
  for (const Marker& marker : Markers()) {
    if (marker.standard_name.empty()) continue;
    text += std::string(marker.standard_name) + "\t" + std::string(marker.capture_name) + "\t\r\n";
  }
  return text;
}

}  // namespace examples
