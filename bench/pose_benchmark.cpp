#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "bench/motion_text.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/pose/hierarchy.h"
#include "inspect/summary/motion_summary.h"

namespace bench {
namespace {

// Where every joint is in every frame, and the box around them.
void SummarizePoses(benchmark::State& state) {
  const auto segments = state.range(0), frames = state.range(1);
  orvane::HtrDocument document;
  const std::string message = orvane::ReadHtrBytes(
      document,
      MakeMotionText({.segments = static_cast<int>(segments), .frames = static_cast<int>(frames)}),
      true);
  if (!message.empty()) return state.SkipWithError(message.c_str());
  const auto hierarchy = orvane::ListHierarchy(document);
  for (auto _ : state) {
    benchmark::DoNotOptimize(orvane::SummarizeMotion(document, hierarchy));
  }
  state.SetItemsProcessed(state.iterations() * segments * frames);
}
BENCHMARK(SummarizePoses)
    ->ArgNames({"segments", "frames"})
    ->Args({60, 10'000})
    ->Args({10'000, 60})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
