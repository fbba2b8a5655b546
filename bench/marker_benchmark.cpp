#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "bench/marker_text.h"
#include "formats/trc/document.h"

namespace bench {
namespace {

// Bytes in a second should stay the same for any number of markers and of frames.
void ReadMarkers(benchmark::State& state) {
  const std::string bytes =
      MakeMarkerText({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
  for (auto _ : state) {
    orvane::TRCDocument document;
    const std::string message = document.ReadBytes(bytes, false);
    if (!message.empty()) {
      state.SkipWithError(message.c_str());
      break;
    }
    benchmark::DoNotOptimize(document);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(ReadMarkers)
    ->Args({60, 36'000})
    ->Args({60, 9'000})
    ->Args({15, 36'000})
    ->Args({240, 2'250})
    ->Args({15, 900})
    ->ArgNames({"markers", "frames"})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
