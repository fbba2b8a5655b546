#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "bench/motion_text.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"

namespace bench {
namespace {

void ReadMotion(benchmark::State& state) {
  const std::string bytes = MakeMotionText(
      {.segments = static_cast<int>(state.range(0)), .frames = static_cast<int>(state.range(1))});
  for (auto _ : state) {
    orvane::HtrDocument document;
    const std::string message = orvane::ReadHtrBytes(document, bytes, true);
    if (!message.empty()) {
      state.SkipWithError(message.c_str());
      break;
    }
    benchmark::DoNotOptimize(document);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(ReadMotion)
    ->ArgNames({"segments", "frames"})
    ->Args({60, 10'000})
    ->Args({1'000, 10})
    ->Args({10'000, 10})
    ->Args({100'000, 10})
    ->Args({10, 1'000})
    ->Args({10, 10'000})
    ->Args({10, 100'000})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
