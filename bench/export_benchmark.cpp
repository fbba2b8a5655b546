#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/application/application.h"
#include "plugin/export_htr/export_htr.h"

// Exporting from a scene in memory to a file: sampling and writing together.

namespace bench {
namespace {

// Which bone bone `index` hangs from.
using ParentOf = std::function<int(int index)>;

host::Node& AddBone(host::Scene& scene, host::Node* parent, int index) {
  auto* object = static_cast<Object*>(scene.CreateInstance(kGeometricObjectSuperClass, kBoneClass));
  host::Node& bone = *scene.CreateNode(object);
  bone.SetName(("Segment" + std::to_string(index)).c_str());
  if (parent != nullptr) parent->AttachChild(&bone, false);
  return bone;
}

// A smooth motion, keyed at every frame, as an import leaves it.
void AddKeys(host::Node& bone, int index, int frames, int ticks_per_frame) {
  for (int frame = 1; frame <= frames; ++frame) {
    const double phase = 0.05 * frame + index;
    const TimeValue time = frame * ticks_per_frame;
    const auto s = static_cast<float>(std::sin(phase));
    const auto c = static_cast<float>(std::cos(phase));
    bone.Transform()->Position().SetKey(time, Point3(120.0F + s, c, s * c));
    bone.Transform()->Rotation().SetKey(time, Quat(s * 0.6F, s * 0.8F, 0.0F, c));
  }
}

void BuildScene(host::Scene& scene, int segments, int frames, const ParentOf& parent_of) {
  host::AnimationState& animation = scene.Animation();
  animation.SetFrameRate(120);
  const int ticks = animation.TicksPerFrame();
  animation.SetRange(Interval(ticks, frames * ticks));
  std::vector<host::Node*> bones;
  for (int index = 0; index < segments; ++index) {
    host::Node* parent = index == 0 ? nullptr : bones[static_cast<std::size_t>(parent_of(index))];
    bones.push_back(&AddBone(scene, parent, index));
    AddKeys(*bones.back(), index, frames, ticks);
  }
  scene.Select(*bones.front());
}

void Export(benchmark::State& state, const ParentOf& parent_of) {
  host::Application application;
  BuildScene(application.scene(), static_cast<int>(state.range(0)),
             static_cast<int>(state.range(1)), parent_of);
  const std::string path = (std::filesystem::temp_directory_path() / "orvane-bench.htr").string();
  orvane::ExportHTROptions options;
  orvane::MessageSink messages;
  for (auto _ : state) {
    orvane::ExportHTR exporter(options, messages, nullptr);
    if (exporter.DoExport(path.c_str(), nullptr, &application.plugin_interface(), 1, 0) != 1) {
      state.SkipWithError("The export failed");
      break;
    }
  }
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(path));
  std::filesystem::remove(path);
}

void ExportTree(benchmark::State& state) {
  Export(state, [](int index) { return (index - 1) / 2; });
}
BENCHMARK(ExportTree)
    ->ArgNames({"segments", "frames"})
    ->Args({60, 10'000})
    ->Args({6, 1'000})
    ->Args({6, 10'000})
    ->Args({6, 100'000})
    ->Unit(benchmark::kMillisecond);

void ExportChain(benchmark::State& state) {
  Export(state, [](int index) { return index - 1; });
}
BENCHMARK(ExportChain)
    ->ArgNames({"segments", "frames"})
    ->Args({60, 10'000})
    ->Args({600, 1'000})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
