#include "cli/export/export_range.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "cli/common/scene_bones.h"
#include "formats/text/numbers.h"
#include "inspect/counts/frame_counts.h"

namespace cli {
namespace {

using orvane::FormatInt;
using orvane::FrameCounts;
using orvane::IsOutOfProportion;
using orvane::WhyOutOfProportion;

// The bone to start from; null when there is none.
const host::Node* FindRoot(const host::Scene& scene) {
  if (scene.Selection().empty()) return nullptr;
  const host::Node* selected = scene.Selection().front();
  return IsBone(*selected) ? selected : FirstBoneChild(*selected);
}

// The plug-in goes by the name, and leaves out what hangs from one, too.
bool IsEffector(const host::Node& bone) {
  return bone.Name().find("Effector") != std::string::npos;
}

// How many bones an export samples: from the one that is selected in `scene`, or the first below
// what is, down to those that only end a chain; 0 when there is none.
std::int64_t CountExportedBones(const host::Scene& scene) {
  const host::Node* root = FindRoot(scene);
  std::int64_t count = 0;
  std::vector<const host::Node*> waiting;
  if (root != nullptr) waiting.push_back(root);
  while (!waiting.empty()) {
    const host::Node* bone = waiting.back();
    waiting.pop_back();
    if (IsEffector(*bone)) continue;
    ++count;
    for (const host::Node* child : bone->Children()) {
      if (IsBone(*child)) waiting.push_back(child);
    }
  }
  return count;
}

// The keys of a scene, from the first to the last one.
class SceneKeys {
 public:
  explicit SceneKeys(const host::Scene& scene)
      : ticks_per_frame_(scene.Animation().TicksPerFrame()) {
    std::vector<const host::Node*> waiting = {&scene.Root()};
    while (!waiting.empty()) {
      const host::Node* node = waiting.back();
      waiting.pop_back();
      if (const host::TransformController* transform = node->Transform()) Add(*transform);
      waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
    }
  }

  // How many frames long they are; 1 without any.
  std::int64_t Length() const { return first_ ? (last_ - *first_) / ticks_per_frame_ + 1 : 1; }

  // The frames that none of them comes after, or before.
  orvane::FrameSpan Frames() const {
    if (!first_) return {};
    return {-RoundedDown(-*first_), RoundedDown(last_)};
  }

  // How many frames nodes are keyed in, those of each node added up.
  std::int64_t Held() const { return held_; }

 private:
  void Add(const host::TransformController& transform) {
    const host::Controller* const controllers[] = {&transform.Position(), &transform.Rotation(),
                                                   &transform.Scale()};
    std::size_t most = 0;
    for (const host::Controller* controller : controllers) {
      const std::size_t count = controller->KeyCount();
      most = std::max(most, count);
      if (count == 0) continue;
      const std::int64_t first = controller->KeyTick(0);
      first_ = first_ ? std::min(*first_, first) : first;
      last_ = std::max(last_, std::int64_t{controller->KeyTick(count - 1)});
    }
    held_ += static_cast<std::int64_t>(most);
  }

  // The last frame that does not begin after `tick`.
  std::int64_t RoundedDown(std::int64_t tick) const {
    return tick / ticks_per_frame_ - (tick % ticks_per_frame_ < 0 ? 1 : 0);
  }

  const std::int64_t ticks_per_frame_;
  std::optional<std::int64_t> first_;
  std::int64_t last_ = INT64_MIN;
  std::int64_t held_ = 0;
};

orvane::FrameSpan AnimationRange(const host::AnimationState& animation) {
  const int ticks = animation.TicksPerFrame();
  return {animation.Range().Start() / ticks, animation.Range().End() / ticks};
}

void RequireProportion(const std::string& file, const host::Scene& scene,
                       const orvane::FrameSpan& wished) {
  const SceneKeys keys(scene);
  const std::int64_t outside = wished.Count() - Overlap(wished, keys.Frames()).Count();
  const FrameCounts counts = {wished.Count(), keys.Length(), keys.Length()};
  const bool is_too_long = IsOutOfProportion(wished.Count(), counts);
  const std::string why =
      is_too_long
          ? ""
          : WhyOutOfProportion({outside, "bone", CountExportedBones(scene), keys.Held(), 0});
  if (!is_too_long && why.empty()) return;
  throw Failure{ExitStatus::kRefused,
                {{file,
                  "There are " + FormatInt(wished.Count()) +
                      " frames to export, but the keys of the scene hold " +
                      FormatInt(keys.Length()) + (why.empty() ? "" : ": " + why),
                  "--range FROM:TO exports a part of the animation range."}}};
}

Failure NumberOutOfBounds(const ExportChoices& choices, std::int64_t frame,
                          const std::string& bound) {
  return {ExitStatus::kRefused,
          {{"--offset",
            FormatInt(choices.offset) + " would give frame " + FormatInt(frame) + " the number " +
                FormatInt(frame + choices.offset) + ", and " + bound + " that a file can have",
            ""}}};
}

void RequireNumbers(const orvane::FrameSpan& wished, const ExportChoices& choices) {
  constexpr std::int64_t kFirst = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kLast = std::numeric_limits<std::int32_t>::max();
  if (wished.Count() == 0) return;
  if (wished.first + choices.offset < kFirst) {
    throw NumberOutOfBounds(choices, wished.first, FormatInt(kFirst) + " is the first");
  }
  if (wished.last + choices.offset > kLast) {
    throw NumberOutOfBounds(choices, wished.last, FormatInt(kLast) + " is the last");
  }
}

}  // namespace

void RequireSensibleRange(const std::string& file, const host::Scene& scene,
                          const ExportChoices& choices) {
  if (!choices.animation) return;
  // What lies outside the animation range is refused by the plug-in.
  const orvane::FrameSpan most = AnimationRange(scene.Animation());
  const orvane::FrameSpan wished = choices.range ? Overlap(*choices.range, most) : most;
  RequireNumbers(wished, choices);
  RequireProportion(file, scene, wished);
}

}  // namespace cli
