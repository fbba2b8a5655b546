// The barest programs for the jobs of `orvane`, to measure it by:
//
//   floor htr FILE        an HTR file to a motion in memory
//   floor trc FILE        a TRC file to markers in memory
//   floor bvk FILE OUT    a TRC file to the points of a BVK file, byte for byte
//   floor import FILE [KEYS]  an HTR file to keys; in memory, or also in a file
//   floor export KEYS OUT     such a file of keys to the rows of an HTR file
//
// Well-formed files alone; nothing is looked at, nothing told.

#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "bench/floor_blocks.h"
#include "bench/floor_keys.h"
#include "bench/floor_markers.h"
#include "bench/floor_motion.h"
#include "bench/floor_numbers.h"

namespace bench {
namespace {

using Arguments = std::vector<std::string>;

const std::string kGap = "DROPOUT\t";

FloorMotion ReadMotionFile(const std::string& path) {
  FloorMotion motion;
  FloorMotionReader reader(motion);
  ReadBlocks(path, [&](std::string_view text) { reader.Take(text); });
  return motion;
}

FloorMarkers ReadMarkersFile(const std::string& path) {
  FloorMarkers markers;
  FloorMarkersReader reader(markers);
  ReadBlocks(path, [&](std::string_view text) { reader.Take(text); });
  return markers;
}

void WritePoints(const FloorMarkers& markers, const std::string& path) {
  Output output(path);
  output.Write("$Order\n");
  for (const std::string& name : markers.names) output.Write(name + ' ');
  output.Write("\n\n$Points\n");
  const std::size_t count = markers.names.size();
  const std::size_t frames = count == 0 ? 0 : markers.values.size() / (3 * count);
  const double* value = markers.values.data();
  for (std::size_t frame = 1; frame <= frames; ++frame) {
    output.Write(std::to_string(frame) + '\t');
    for (std::size_t marker = 0; marker < count; ++marker, value += 3) {
      if (std::isnan(value[0])) {
        output.Write(kGap);
        continue;
      }
      char* at = output.Room();
      for (const double cell : {value[0], -value[2], value[1]}) {
        at = PutNumber(at, cell);
        *at++ = '\t';
      }
      output.Wrote(at);
    }
    output.Write("\n\n");
  }
}

void WriteMotion(const FloorMotion& motion, const std::string& path) {
  constexpr double kDegrees = 57.29577951308232;  // in a radian
  Output output(path);
  for (const FloorSegment& segment : motion.segments) {
    output.Write('[' + segment.name + "]\n");
    const double* value = segment.values.data();
    for (std::size_t frame = 1; frame <= motion.frames; ++frame) {
      char* at = PutWhole(output.Room(), static_cast<std::uint32_t>(frame));
      for (std::size_t cell = 0; cell < kMotionValues; ++cell, ++value) {
        *at++ = '\t';
        at = PutNumber(at, cell < 3 || cell == 6 ? *value : *value * kDegrees);
      }
      *at++ = '\n';
      output.Wrote(at);
    }
  }
}

// How much there is and what comes last, so that no compiler leaves the work out.
void Tell(std::size_t count, double last) { std::printf("%zu, %f\n", count, last); }

void TellMotion(const Arguments& arguments) {
  const FloorMotion motion = ReadMotionFile(arguments.at(0));
  Tell(motion.segments.size(), motion.segments.back().values.back());
}

void TellMarkers(const Arguments& arguments) {
  const FloorMarkers markers = ReadMarkersFile(arguments.at(0));
  Tell(markers.names.size(), markers.values.back());
}

void Convert(const Arguments& arguments) {
  WritePoints(ReadMarkersFile(arguments.at(0)), arguments.at(1));
}

void Import(const Arguments& arguments) {
  const std::vector<FloorBone> bones = MakeKeys(ReadMotionFile(arguments.at(0)));
  Tell(bones.size(), bones.back().rotation.keys().back().values[0]);
  if (arguments.size() > 1) WriteKeys(bones, arguments[1]);
}

void Export(const Arguments& arguments) {
  WriteMotion(MotionOfKeys(ReadKeys(arguments.at(0))), arguments.at(1));
}

}  // namespace
}  // namespace bench

int main(int argument_count, char** argument_values) {
  const std::map<std::string, std::function<void(const bench::Arguments&)>> jobs{
      {"htr", bench::TellMotion},
      {"trc", bench::TellMarkers},
      {"bvk", bench::Convert},
      {"import", bench::Import},
      {"export", bench::Export}};
  const bench::Arguments arguments(argument_values + 1, argument_values + argument_count);
  const auto job = arguments.size() < 2 ? jobs.end() : jobs.find(arguments[0]);
  if (job == jobs.end()) {
    std::fprintf(stderr, "Usage: floor htr|trc|bvk|import|export FILE [OUT]\n");
    return 2;
  }
  job->second({arguments.begin() + 1, arguments.end()});
  return 0;
}
