#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Marker files as text, for tests: a header that every reader takes, and whatever markers and
// frames a test wants.
namespace test {

struct TrcText {
  using Frame = std::vector<std::string>;  // for each marker "x\ty\tz", or empty for a dropout

  std::vector<std::string> markers;
  std::vector<Frame> frames{};
  std::string data_rate = "60";
  std::string camera_rate = "60";
  std::string units = "mm";
  int path_type = 4;
  std::int64_t first_frame = 1;
  std::string time = "0.000";  // of every frame
  int frame_count = -1;        // as the header says; -1: as many as there are
  int marker_count = -1;       // likewise
  std::string line_end = "\n";

  std::string Text() const {
    std::string text = Header() + MarkerNames() + SubHeader() + line_end;
    for (std::size_t frame = 0; frame < frames.size(); ++frame) text += FrameLine(frame);
    return text;
  }

  std::string Header() const {
    return "PathFileType\t" + std::to_string(path_type) + "\t(X/Y/Z)\ttest.trc" + line_end +
           "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
           "OrigNumFrames" +
           line_end + data_rate + "\t" + camera_rate + "\t" +
           std::to_string(frame_count < 0 ? static_cast<int>(frames.size()) : frame_count) + "\t" +
           std::to_string(marker_count < 0 ? static_cast<int>(markers.size()) : marker_count) +
           "\t" + units + "\t" + data_rate + "\t" + std::to_string(first_frame) + "\t" +
           std::to_string(frames.size()) + line_end;
  }

  std::string MarkerNames() const {
    std::string text = "Frame#\tTime\t";
    for (const std::string& marker : markers) text += marker + "\t\t\t";
    return text + line_end;
  }

  std::string SubHeader() const {
    std::string text = "\t";
    for (std::size_t marker = 1; marker <= markers.size(); ++marker) {
      const std::string number = std::to_string(marker);
      text += "\tX" + number + "\tY" + number + "\tZ" + number;
    }
    return text + line_end;
  }

  std::string FrameLine(std::size_t index) const {
    std::string text = std::to_string(first_frame + static_cast<std::int64_t>(index)) + "\t" + time;
    for (const std::string& sample : frames[index]) {
      text += "\t" + (sample.empty() ? "\t\t" : sample);
    }
    return text + line_end;
  }
};

}  // namespace test
