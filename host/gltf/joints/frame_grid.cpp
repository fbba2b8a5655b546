#include "host/gltf/joints/frame_grid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <string>

#include "host/animation/animation_state.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/joints/joint_sampler.h"

namespace host::gltf {

namespace {

using nlohmann::json;

constexpr Rate kAssumedRate{30, 1};

// Fewer in a second are keys that somebody has set by hand.
constexpr double kLeastKeyRate = 10.0;

constexpr std::size_t kAlwaysAllowed = 100'000;
constexpr std::size_t kTimesKeys = 10;

double Value(const Rate& rate) {
  return static_cast<double>(rate.numerator) / static_cast<double>(rate.denominator);
}

double First(const FileNumbers& seconds) { return seconds.At(0, 0); }
double Last(const FileNumbers& seconds) { return seconds.At(seconds.Size() - 1, 0); }

double StartOf(const JointClip& clip) {
  double start = std::numeric_limits<double>::infinity();
  for (const FileNumbers& seconds : clip.seconds) start = std::min(start, First(seconds));
  return start;
}

double EndOf(const JointClip& clip) {
  double end = -std::numeric_limits<double>::infinity();
  for (const FileNumbers& seconds : clip.seconds) end = std::max(end, Last(seconds));
  return end;
}

std::size_t MostKeysOf(const JointClip& clip) {
  std::size_t most = 0;
  for (const FileNumbers& seconds : clip.seconds) most = std::max(most, seconds.Size());
  return most;
}

// The most keys of one track that lie between frames.
std::size_t KeysBetween(const JointClip& clip, double start, double rate) {
  constexpr double kSlack = 1e-3;
  std::size_t most = 0;
  for (const FileNumbers& seconds : clip.seconds) {
    std::size_t between = 0;
    for (std::size_t key = 0; key < seconds.Size(); ++key) {
      const double second = seconds.At(key, 0);
      const double frame = (second - start) * rate;
      const bool is_at = std::abs(frame - std::round(frame)) <= kSlack + SecondsOff(second) * rate;
      between += is_at ? 0U : 1U;
    }
    most = std::max(most, between);
  }
  return most;
}

// What the keys suggest: the shortest way between two, and how many there are in their time where
// there are most.
std::array<double, 2> SuggestedRates(const JointClip& clip) {
  double shortest = std::numeric_limits<double>::infinity();
  const FileNumbers* longest = &clip.seconds.front();
  for (const FileNumbers& seconds : clip.seconds) {
    if (seconds.Size() > longest->Size()) longest = &seconds;
    for (std::size_t key = 1; key < seconds.Size(); ++key) {
      shortest = std::min(shortest, seconds.At(key, 0) - seconds.At(key - 1, 0));
    }
  }
  const double ways = static_cast<double>(longest->Size()) - 1.0;
  const double seconds = Last(*longest) - First(*longest);
  return {1.0 / shortest, seconds > 0.0 ? ways / seconds : 0.0};
}

// Whole numbers, and those of video, which are a thousandth less.
std::optional<Rate> RateOfKeys(const JointClip& clip, double start) {
  for (const double suggested : SuggestedRates(clip)) {
    if (!(suggested >= kLeastKeyRate - 0.5) || suggested > kMaximumFrameRate) continue;
    const std::int64_t whole = std::llround(suggested);
    const std::int64_t common = std::gcd(whole * 1000, std::int64_t{1001});
    for (const Rate& rate : {Rate{whole, 1}, Rate{whole * 1000 / common, 1001 / common}}) {
      if (KeysBetween(clip, start, Value(rate)) == 0) return rate;
    }
  }
  return std::nullopt;
}

// What our own files tell of the recording, and other programs may have brought on. Null when it
// is not there.
const json* RecordingIn(const JsonField& document) {
  const auto scenes = document.FindMember("scenes");
  const auto shown = document.FindMember("scene");
  const std::size_t index = shown ? shown->Word() : 0;
  if (!scenes || index >= scenes->Size()) return nullptr;
  const auto extras = scenes->Element(index).FindMember("extras");
  return extras ? &extras->Value() : nullptr;
}

// A whole number of the object `told`, within bounds; nothing when it has none there.
std::optional<std::int64_t> WholeIn(const json& told, const char* name, std::int64_t most) {
  const auto found = told.find(name);
  if (found == told.end() || !found->is_number_integer()) return std::nullopt;
  const auto number = found->get<std::int64_t>();
  return std::abs(number) <= most ? std::optional(number) : std::nullopt;
}

std::optional<Rate> RateOfRecording(const json* told) {
  if (told == nullptr || !told->is_object()) return std::nullopt;
  const auto parts = told->find("frameRate");
  if (parts == told->end() || !parts->is_object()) return std::nullopt;
  const Rate rate{WholeIn(*parts, "numerator", kLargestInRate).value_or(0),
                  WholeIn(*parts, "denominator", kLargestInRate).value_or(0)};
  if (!IsInLowestTerms(rate)) return std::nullopt;
  const bool is_held = 1.0 <= Value(rate) && Value(rate) <= kMaximumFrameRate;
  return is_held ? std::optional(rate) : std::nullopt;
}

void ChooseRate(const json* recording, const JointClip& clip, const std::optional<Rate>& wanted,
                FrameGrid& grid) {
  const std::optional<Rate> told = RateOfRecording(recording);
  if (wanted) {
    grid.rate = *wanted;
    grid.source = RateSource::kWanted;
  } else if (told && KeysBetween(clip, grid.start, Value(*told)) == 0) {
    grid.rate = *told;
    grid.source = RateSource::kRecording;
  } else if (const auto rate = RateOfKeys(clip, grid.start)) {
    grid.rate = *rate;
    grid.source = RateSource::kKeys;
  } else {
    grid.rate = kAssumedRate;
    grid.source = RateSource::kAssumed;
  }
}

void CountFrames(const JointClip& clip, FrameGrid& grid) {
  const double rate = Value(grid.rate);
  const double end = EndOf(clip);
  const double off = 1e-3 + SecondsOff(end) * rate;
  const double frames = std::max(std::ceil((end - grid.start) * rate - off), 0.0) + 1.0;
  const std::size_t keys = MostKeysOf(clip);
  if (frames > static_cast<double>(std::max(kAlwaysAllowed, kTimesKeys * keys))) {
    throw Refusal("There are " + std::to_string(keys) +
                  " keys in the animation, and far too many frames between the first and the last "
                  "of them; --rate takes fewer in a second.");
  }
  grid.count = static_cast<std::size_t>(frames);
  grid.keys_between = KeysBetween(clip, grid.start, rate);
}

}  // namespace

FrameGrid FrameGridOf(const JsonField& document, const JointClip* clip,
                      const std::optional<Rate>& wanted) {
  FrameGrid grid;
  grid.rate = wanted.value_or(kAssumedRate);
  grid.source = wanted ? RateSource::kWanted : RateSource::kRecording;
  const json* const recording = RecordingIn(document);
  if (recording != nullptr && recording->is_object()) {
    constexpr std::int64_t kMostNumber = 1'000'000;
    const auto first = WholeIn(*recording, "firstFrame", kMostNumber);
    if (first) grid.first_number = static_cast<std::int32_t>(*first);
  }
  if (clip == nullptr) return grid;
  grid.start = StartOf(*clip);
  ChooseRate(recording, *clip, wanted, grid);
  CountFrames(*clip, grid);
  return grid;
}

}  // namespace host::gltf
