#include "bench/marker_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace bench {
namespace {

constexpr std::size_t kBytesPerSample = 32;

void AppendNumber(std::string& text, double value, int decimals) {
  std::array<char, 32> digits;
  char* const first = digits.data();
  const auto result =
      std::to_chars(first, first + digits.size(), value, std::chars_format::fixed, decimals);
  text.append(first, result.ptr);
}

void AppendHeader(std::string& text, MarkerSize size) {
  text +=
      "PathFileType\t4\t(X/Y/Z)\tmarkers.trc\nDataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\t"
      "OrigDataRate\tOrigDataStartFrame\tOrigNumFrames\n120\t120\t";
  text += std::to_string(size.frames) + '\t' + std::to_string(size.markers);
  text += "\tmm\t120\t1\t" + std::to_string(size.frames) + '\n';
}

void AppendColumns(std::string& text, MarkerSize size) {
  text += "Frame#\tTime\t";
  for (int marker = 0; marker < size.markers; ++marker) {
    text += "Marker" + std::to_string(marker) + "\t\t\t";
  }
  text += "\n\t";
  for (int marker = 1; marker <= size.markers; ++marker) {
    const std::string number = std::to_string(marker);
    text += "\tX" + number + "\tY" + number + "\tZ" + number;
  }
  text += "\n\n";
}

void AppendFrame(std::string& text, int frame, MarkerSize size) {
  text += std::to_string(frame) + '\t';
  AppendNumber(text, (frame - 1) / 120.0, 3);
  for (int marker = 0; marker < size.markers; ++marker) {
    const double phase = 0.02 * frame + marker;
    for (int axis = 0; axis < 3; ++axis) {
      text += '\t';
      AppendNumber(text, 600.0 + 800.0 * std::sin(phase + axis), 4);
    }
  }
  text += '\n';
}

}  // namespace

std::string MakeMarkerText(MarkerSize size) {
  std::string text;
  text.reserve(static_cast<std::size_t>(size.markers) * static_cast<std::size_t>(size.frames) *
               kBytesPerSample);
  AppendHeader(text, size);
  AppendColumns(text, size);
  for (int frame = 1; frame <= size.frames; ++frame) AppendFrame(text, frame, size);
  return text;
}

}  // namespace bench
