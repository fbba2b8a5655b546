#include "bench/floor_motion.h"

#include "bench/floor_numbers.h"

namespace bench {
namespace {

constexpr std::string_view kFrames = "NumFrames ";
constexpr double kRadians = 0.017453292519943295;  // in a degree

}  // namespace

void FloorMotionReader::Take(std::string_view text) {
  const char* at = text.data();
  const char* const last = at + text.size();
  while (at != last) {
    if (motion_rows_ && *at >= '0' && *at <= '9') {
      at = TakeSample(at);
      continue;
    }
    const std::string_view rest(at, static_cast<std::size_t>(last - at));
    const std::size_t length = rest.find('\n');
    TakeLine(rest.substr(0, length));
    at += length + 1;
  }
}

void FloorMotionReader::TakeLine(std::string_view line) {
  if (line.starts_with(kFrames)) {
    while (line.back() < '0') line.remove_suffix(1);
    std::from_chars(line.data() + kFrames.size(), line.data() + line.size(), motion_.frames);
  }
  if (!line.starts_with('[')) return;
  const std::string_view name = line.substr(1, line.find(']') - 1);
  motion_rows_ = bases_ && name != "EndOfFile";
  bases_ = bases_ || name == "BasePosition";
  if (!motion_rows_) return;
  motion_.segments.push_back({std::string(name), {}});
  motion_.segments.back().values.reserve(kMotionValues * motion_.frames);
}

const char* FloorMotionReader::TakeSample(const char* at) {
  at = SkipTo(at, '\t');
  std::array<double, kMotionValues> sample;
  for (double& value : sample) {
    ++at;
    value = ReadNumber(at);
  }
  for (std::size_t angle = 3; angle < 6; ++angle) sample[angle] *= kRadians;
  std::vector<double>& values = motion_.segments.back().values;
  values.insert(values.end(), sample.begin(), sample.end());
  return SkipTo(at, '\n') + 1;
}

}  // namespace bench
