#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "bench/marker_text.h"
#include "bench/motion_text.h"
#include "formats/bvk/writer.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/htr/writer.h"
#include "formats/text/six_decimals.h"
#include "formats/trc/document.h"

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

// The same of a BVK file.
void WriteMarkers(benchmark::State& state) {
  orvane::TRCDocument document;
  const std::string message =
      document.ReadBytes(MakeMarkerText({.markers = static_cast<int>(state.range(0)),
                                         .frames = static_cast<int>(state.range(1))}),
                         true);
  if (!message.empty()) return state.SkipWithError(message.c_str());
  std::string bytes;
  for (auto _ : state) {
    bytes.clear();
    orvane::PrintBvk(document, {"walk", "Wed Jun 30 21:49:08 1993\n", {}},
                     [&bytes](std::string_view piece) { bytes += piece; });
    benchmark::DoNotOptimize(bytes.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(WriteMarkers)
    ->ArgNames({"markers", "frames"})
    ->Args({60, 36'000})
    ->Args({6, 36'000})
    ->Unit(benchmark::kMillisecond);

// Numbers alone, of a motion's size.
void WriteNumbers(benchmark::State& state) {
  constexpr std::size_t kNumbers = 10'000;
  std::vector<double> numbers(kNumbers);
  double number = 0.5;
  for (double& each : numbers) {
    number = 3.99 * number * (1.0 - number);  // never twice the same
    each = 3'000.0 * number - 1'000.0;
  }
  std::vector<char> text(kNumbers * orvane::kLongestColumn);
  for (auto _ : state) {
    benchmark::DoNotOptimize(orvane::WriteColumns(numbers, text.data()));
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kNumbers));
}
BENCHMARK(WriteNumbers)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace bench
