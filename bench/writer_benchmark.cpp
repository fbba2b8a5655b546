#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "bench/motion_text.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/htr/writer.h"

namespace bench {
namespace {

// The whole file in memory, in one piece.
void WriteMotion(benchmark::State& state) {
  orvane::HtrDocument document;
  const std::string message =
      orvane::ReadHtrBytes(document,
                           MakeMotionText({.segments = static_cast<int>(state.range(0)),
                                           .frames = static_cast<int>(state.range(1))}),
                           true);
  if (!message.empty()) return state.SkipWithError(message.c_str());
  std::string bytes;
  for (auto _ : state) {
    bytes.clear();
    orvane::PrintHtr(document, [&bytes](std::string_view piece) { bytes += piece; });
    benchmark::DoNotOptimize(bytes.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(WriteMotion)
    ->ArgNames({"segments", "frames"})
    ->Args({60, 10'000})
    ->Args({6, 1'000})
    ->Args({6, 10'000})
    ->Args({6, 100'000})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
