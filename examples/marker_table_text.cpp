#include "examples/marker_table_text.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "formats/text/numbers.h"

namespace examples {
namespace {

constexpr const char* kLineEnd = "\r\n";

std::string Count(std::size_t number) {
  return orvane::FormatInt(static_cast<std::int64_t>(number));
}

// No minus before a zero.
std::string Number(double value, int decimals) {
  const double steps = std::pow(10.0, decimals);
  return orvane::FormatDouble(std::round(value * steps) / steps + 0.0, decimals);
}

std::string HeaderText(const MarkerTable& table) {
  const std::string frames = Count(table.frames.size());
  const std::string rate = Count(kFramesPerSecond);
  return "PathFileType\t4\t(X/Y/Z)\t" + table.file_name + kLineEnd +
         "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
         "OrigNumFrames" +
         kLineEnd + rate + "\t" + rate + "\t" + frames + "\t" + Count(table.names.size()) + "\t" +
         table.unit + "\t" + rate + "\t1\t" + frames + kLineEnd;
}

std::string ColumnNames(const MarkerTable& table) {
  std::string names = "Frame#\tTime\t";
  std::string axes = "\t";
  for (std::size_t index = 0; index < table.names.size(); ++index) {
    names += table.names[index] + "\t\t\t";
    for (const char* axis : {"\tX", "\tY", "\tZ"}) axes += axis + Count(index + 1);
  }
  return names + kLineEnd + axes + "\t" + kLineEnd + kLineEnd;
}

std::string Columns(const std::optional<Vector3>& position, int decimals) {
  if (!position) return "\t\t\t";
  return "\t" + Number(position->x(), decimals) + "\t" + Number(position->y(), decimals) + "\t" +
         Number(position->z(), decimals);
}

std::string FrameText(const MarkerTable& table, std::size_t index) {
  constexpr int kDecimalsOfSeconds = 3;
  const double time_s = static_cast<double>(index) / kFramesPerSecond;
  std::string text = Count(index + 1) + "\t" + Number(time_s, kDecimalsOfSeconds);
  for (const auto& position : table.frames[index]) text += Columns(position, table.decimals);
  return text + "\t" + kLineEnd;
}

}  // namespace

std::string TextOf(const MarkerTable& table) {
  std::string text = HeaderText(table) + ColumnNames(table);
  for (std::size_t index = 0; index < table.frames.size(); ++index) text += FrameText(table, index);
  return text;
}

}  // namespace examples
