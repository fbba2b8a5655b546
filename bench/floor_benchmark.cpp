#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "bench/floor_markers.h"
#include "bench/floor_motion.h"
#include "bench/marker_text.h"
#include "bench/motion_text.h"

// What reading the files of the readers' benchmarks takes at least.

namespace bench {
namespace {

template <typename Reader, typename Document>
void Read(benchmark::State& state, const std::string& bytes) {
  for (auto _ : state) {
    Document document;
    Reader(document).Take(bytes);
    benchmark::DoNotOptimize(document);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void ReadMotionBarely(benchmark::State& state) {
  Read<FloorMotionReader, FloorMotion>(
      state, MakeMotionText({.segments = static_cast<int>(state.range(0)),
                             .frames = static_cast<int>(state.range(1))}));
}
BENCHMARK(ReadMotionBarely)
    ->ArgNames({"segments", "frames"})
    ->Args({60, 10'000})
    ->Args({10, 1'000})
    ->Unit(benchmark::kMillisecond);

void ReadMarkersBarely(benchmark::State& state) {
  Read<FloorMarkersReader, FloorMarkers>(
      state, MakeMarkerText({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))}));
}
BENCHMARK(ReadMarkersBarely)
    ->ArgNames({"markers", "frames"})
    ->Args({60, 36'000})
    ->Args({15, 900})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
