#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "bench/motion_text.h"
#include "plugin/htr/document.h"
#include "plugin/htr/reader.h"

namespace bench {
namespace {

void ReadMotion(benchmark::State& state) {
  const std::string bytes = MakeMotionText({});
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
BENCHMARK(ReadMotion)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
