#include <benchmark/benchmark.h>

#include "host/scene/scene.h"
#include "sdk/core/class_id.h"
#include "sdk/core/control.h"

namespace bench {
namespace {

constexpr TimeValue kTicksPerFrame = 160;
constexpr TimeValue kFrames = 10'000;
constexpr TimeValue kTicks = kFrames * kTicksPerFrame;

// The controllers of a bone in a scene, as an import meets them.
class Bone {
 public:
  Bone() {
    auto* object =
        static_cast<Object*>(scene_.CreateInstance(kGeometricObjectSuperClass, kBoneClass));
    Control* transform = scene_.CreateNode(object)->GetTMController();
    position_ = transform->GetPositionController();
    rotation_ = transform->GetRotationController();
    scene_.Animation().AnimateMode().Set(true);
  }

  // None when `ticks_per_key` is 0.
  void SetKeys(TimeValue ticks_per_key) {
    if (ticks_per_key == 0) return;
    const Point3 point;
    const Quat rotation;
    for (TimeValue tick = 0; tick < kTicks; tick += ticks_per_key) {
      position_->SetValue(tick, &point, 1, CTRL_ABSOLUTE);
      rotation_->SetValue(tick, &rotation, 1, CTRL_ABSOLUTE);
    }
  }

  // Calls `call` for both controllers at every tick, as an import does before it sets keys.
  template <typename Call>
  void AtEveryTick(Call call) {
    for (TimeValue tick = 0; tick < kTicks; ++tick) {
      call(*position_, tick);
      call(*rotation_, tick);
    }
  }

 private:
  host::Scene scene_;
  Control* position_;
  Control* rotation_;
};

void CountCalls(benchmark::State& state) {
  using benchmark::Counter;
  state.counters["time_per_call"] =
      Counter(2.0 * kTicks, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

// What any call through the interface costs on this machine, now.
void CallControllers(benchmark::State& state) {
  Bone bone;
  for (auto _ : state) {
    bone.AtEveryTick([](Control& control, TimeValue) {
      benchmark::DoNotOptimize(control.GetPositionController());
    });
  }
  CountCalls(state);
}
BENCHMARK(CallControllers)->Unit(benchmark::kMillisecond);

// Argument: ticks from key to key; 0 for controllers without keys.
void DeleteKeys(benchmark::State& state) {
  const auto ticks_per_key = static_cast<TimeValue>(state.range(0));
  Bone bone;
  for (auto _ : state) {
    state.PauseTiming();
    bone.SetKeys(ticks_per_key);
    state.ResumeTiming();
    bone.AtEveryTick([](Control& control, TimeValue tick) { control.DeleteKeyAt(tick); });
  }
  CountCalls(state);
}
BENCHMARK(DeleteKeys)
    ->ArgName("ticks_per_key")
    ->Arg(0)
    ->Arg(kTicksPerFrame)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
