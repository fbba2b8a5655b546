#include "cli/export_range.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "cli/export_htr_flags.h"
#include "cli/failure.h"
#include "plugin/text/numbers.h"

namespace cli {
namespace {

constexpr std::int64_t kAlwaysAllowed = 100'000;
constexpr std::int64_t kTimesKeyed = 10;

// From the first key to the last one, both included.
class KeySpan {
 public:
  void Add(const host::Controller& controller) {
    if (controller.KeyCount() == 0) return;
    Extend(controller.KeyTick(0));
    Extend(controller.KeyTick(controller.KeyCount() - 1));
  }

  std::int64_t Frames(int ticks_per_frame) const {
    return first_ ? (last_ - *first_) / ticks_per_frame + 1 : 1;
  }

 private:
  void Extend(std::int64_t tick) {
    first_ = first_ ? std::min(*first_, tick) : tick;
    last_ = std::max(last_, tick);
  }

  std::optional<std::int64_t> first_;
  std::int64_t last_ = INT64_MIN;
};

std::int64_t KeyedFrames(const host::Scene& scene) {
  KeySpan span;
  std::vector<const host::Node*> waiting = {&scene.Root()};
  while (!waiting.empty()) {
    const host::Node* node = waiting.back();
    waiting.pop_back();
    if (const host::TransformController* transform = node->Transform()) {
      span.Add(transform->Position());
      span.Add(transform->Rotation());
      span.Add(transform->Scale());
    }
    waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
  }
  return span.Frames(scene.Animation().TicksPerFrame());
}

std::int64_t FramesInAnimationRange(const host::AnimationState& animation) {
  const int ticks = animation.TicksPerFrame();
  return std::int64_t{animation.Range().End() / ticks} - animation.Range().Start() / ticks + 1;
}

}  // namespace

void RequireSensibleRange(const host::Scene& scene, const std::vector<ControlWish>& wishes) {
  if (LeaveAnimationOut(wishes)) return;
  // What lies outside the animation range is refused by the plug-in.
  const std::int64_t most = FramesInAnimationRange(scene.Animation());
  const std::int64_t wanted = std::min(FramesToExport(wishes).value_or(most), most);
  if (wanted <= kAlwaysAllowed) return;
  const std::int64_t keyed = KeyedFrames(scene);
  if (wanted <= kTimesKeyed * keyed) return;
  throw Failure{
      ExitStatus::kRefused,
      {{"",
        "There are " + orvane::FormatInt(wanted) +
            " frames to export, but the keys of the scene hold " + orvane::FormatInt(keyed),
        "--range FROM:TO exports a part of the animation range."}}};
}

}  // namespace cli
