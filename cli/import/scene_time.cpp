#include "cli/import/scene_time.h"

#include <string>
#include <utility>

#include "cli/common/failure.h"
#include "cli/import/key_counts.h"

namespace cli {
namespace {

Failure CannotShowFileTime(const std::string& text) {
  return {ExitStatus::kWrongUsage, {{"--time file", text, ""}}};
}

// What a scene without motion is shown at.
SceneTime TimeOfNewMotion(const host::Recording& file, const ImportChoices& choices,
                          std::optional<ShownTime> wished) {
  SceneTime time{file, file.rate.has_value(), {}};
  if (wished == ShownTime::kFile && !choices.frame_rate_from_file) {
    throw CannotShowFileTime("the scene keeps its own rate with --frame-rate keep");
  }
  if (wished == ShownTime::kFile && !time.is_own) {
    throw CannotShowFileTime("the file has no such rate");
  }
  if (wished == ShownTime::kHost || !choices.frame_rate_from_file) {
    time.recording->rate.reset();
    time.is_own = false;
  }
  return time;
}

// What becomes of motion at `rate` when it goes by the time of the host that it was keyed in.
orvane::TimeChange ChangeOf(const host::Rate& rate, const host::Recording& file,
                            const host::AnimationState& animation,
                            std::optional<ShownTime> wished) {
  orvane::TimeChange change;
  change.scene_rate = Value(rate);
  change.host_rate = static_cast<double>(kTicksPerSecond) / animation.TicksPerFrame();
  if (wished != ShownTime::kHost && file.rate) change.file_rate = Value(*file.rate);
  return change;
}

}  // namespace

double Value(const host::Rate& rate) {
  return static_cast<double>(rate.numerator) / static_cast<double>(rate.denominator);
}

SceneTime PlanTime(const host::Recording& file, std::int32_t taken_rate,
                   const ImportChoices& choices, const host::Scene& scene,
                   std::optional<ShownTime> wished) {
  if (KeysIn(scene).count == 0) return TimeOfNewMotion(file, choices, wished);
  const host::AnimationState& animation = scene.Animation();
  const bool same_ticks =
      !choices.frame_rate_from_file || host::TicksPerFrame(taken_rate) == animation.TicksPerFrame();
  SceneTime time{scene.Recording(), false, {}};
  const bool has_own = time.recording && time.recording->rate;
  time.is_own =
      has_own && time.recording->rate == file.rate && same_ticks && wished != ShownTime::kHost;
  if (wished == ShownTime::kFile && !time.is_own) {
    throw CannotShowFileTime(
        "the motion in the scene has another rate, or goes by the host's time");
  }
  if (!has_own || time.is_own) return time;
  time.change = ChangeOf(*time.recording->rate, file, animation, wished);
  time.recording->rate.reset();
  return time;
}

}  // namespace cli
