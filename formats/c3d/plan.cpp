#include "formats/c3d/plan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "formats/c3d/parameter_section.h"
#include "formats/c3d/parameters.h"
#include "formats/text/numbers.h"

namespace orvane {
namespace {

using Reason = C3dRefusal::Reason;

constexpr std::size_t kMostMarkers = kMostC3dWord;
constexpr std::size_t kMostFrameNumber = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t kMostLabelBytes = 255;

// In single precision, in which a large number may be infinite.
bool IsHeld(double number) { return std::abs(number) <= double{std::numeric_limits<float>::max()}; }

// The beginning of `name` that fits, without a part of a character of UTF-8.
std::string_view BeginningOf(std::string_view name) {
  if (name.size() <= kMostLabelBytes) return name;
  const auto is_inside = [](char byte) { return (static_cast<unsigned char>(byte) >> 6U) == 2; };
  std::size_t size = kMostLabelBytes;
  while (size > kMostLabelBytes - 3 && is_inside(name[size])) --size;
  return name.substr(0, is_inside(name[size]) ? kMostLabelBytes : size);
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// Puts the plan of one document together, and what is lost of it.
class Planner {
 public:
  Planner(const TRCDocument& document, const C3dOptions& options, C3dPlan& plan)
      : document_(document), options_(options), plan_(plan) {}

  // The refusal, if there is one; in that case the plan is not finished.
  std::optional<C3dRefusal> Plan();

 private:
  void PlanMarkers();
  void PlanLabel(const TRCMarker& marker);
  std::optional<C3dRefusal> PlanFrames();
  std::optional<C3dRefusal> PlanRate();
  std::optional<C3dRefusal> MeasureMarker(const TRCMarker& marker);
  std::optional<C3dRefusal> PlanParameters();

  const TRCDocument& document_;
  const C3dOptions& options_;
  C3dPlan& plan_;
};

std::optional<C3dRefusal> Planner::Plan() {
  PlanMarkers();
  if (plan_.markers.size() > kMostMarkers) {
    return C3dRefusal{Reason::kTooManyMarkers, plan_.markers.size(), kMostMarkers, nullptr, 0};
  }
  std::optional<C3dRefusal> refusal = PlanFrames();
  if (!refusal) refusal = PlanRate();
  for (const TRCMarker* marker : plan_.markers) {
    if (!refusal) refusal = MeasureMarker(*marker);
  }
  if (!refusal) refusal = PlanParameters();
  return refusal;
}

void Planner::PlanMarkers() {
  plan_.markers.reserve(document_.markers().size());
  for (const TRCMarker& marker : document_.markers()) {
    if (marker.IsEnabled()) {
      plan_.markers.push_back(&marker);
    } else {
      ++plan_.losses.disabled_markers;
    }
  }
  plan_.labels.reserve(plan_.markers.size());
  for (const TRCMarker* marker : plan_.markers) PlanLabel(*marker);
}

void Planner::PlanLabel(const TRCMarker& marker) {
  const std::string& name = marker.Name();
  C3dLosses::Label label;
  label.marker = &marker;
  label.label = BeginningOf(name);
  label.is_cut = label.label.size() < name.size();
  label.has_blanks_at_end = label.label.ends_with(' ');
  label.is_beyond_ascii = !IsAscii(label.label);
  plan_.labels.push_back(label.label);
  if (label.is_cut || label.has_blanks_at_end || label.is_beyond_ascii) {
    plan_.losses.labels.push_back(std::move(label));
  }
}

std::optional<C3dRefusal> Planner::PlanFrames() {
  std::size_t count = 0;
  for (const TRCMarker* marker : plan_.markers) count = std::max(count, marker->SampleCount());
  const std::int32_t first = document_.FirstFrame();
  if (first < 1) plan_.losses.first_frame = first;
  plan_.first_frame = static_cast<std::uint32_t>(std::max(first, 1));
  if (count > kMostFrameNumber - plan_.first_frame) {
    return C3dRefusal{Reason::kTooManyFrames, count, kMostFrameNumber - plan_.first_frame, nullptr,
                      0};
  }
  plan_.frame_count = static_cast<std::uint32_t>(count);
  plan_.losses.is_beyond_header =
      std::max(plan_.first_frame, plan_.first_frame + plan_.frame_count - 1) > kMostC3dWord;
  return std::nullopt;
}

std::optional<C3dRefusal> Planner::PlanRate() {
  const double rate = options_.rate ? options_.rate->frames_per_second : document_.DataRate();
  plan_.frames_per_second = rate;
  if (!IsHeld(rate) || !(static_cast<float>(rate) > 0)) {
    return C3dRefusal{Reason::kRate, 0, 0, nullptr, 0};
  }
  constexpr double kTimesAgree = 0.001;  // in seconds; some programs write no more digits
  const double by_number = (static_cast<double>(plan_.first_frame) - 1) / rate;
  const double first_time = options_.first_time;
  if (first_time != 0 && std::abs(first_time - by_number) >= kTimesAgree) {
    plan_.losses.first_time = first_time;
  }
  plan_.losses.is_rate_rounded = double{static_cast<float>(rate)} != rate;
  const std::int32_t camera_rate = document_.CameraRate();
  if (camera_rate != 0 && static_cast<double>(camera_rate) != rate)
    plan_.losses.camera_rate = camera_rate;
  return std::nullopt;
}

std::optional<C3dRefusal> Planner::MeasureMarker(const TRCMarker& marker) {
  const double to_mm = LengthFactor(static_cast<std::uint32_t>(document_.Units()), kMillimeters);
  for (std::size_t frame = 0; frame < marker.SampleCount(); ++frame) {
    std::array<double, 3> position{};
    if (!marker.GetSample(frame, position[0], position[1], position[2])) continue;
    for (const double number : position) {
      if (!IsHeld(number)) return C3dRefusal{Reason::kNotFinite, 0, 0, &marker, frame};
      const double error_mm = std::abs(number - double{static_cast<float>(number)}) * to_mm;
      const double greatest = plan_.losses.rounding ? plan_.losses.rounding->error_mm : 0.0;
      if (error_mm > greatest) plan_.losses.rounding = {&marker, frame, error_mm};
    }
  }
  return std::nullopt;
}

std::optional<C3dRefusal> Planner::PlanParameters() {
  const std::string rate = options_.rate ? options_.rate->text : FormatInt(document_.DataRate());
  plan_.parameters = MakeC3dParameters(
      {.labels = {plan_.labels.begin(), plan_.labels.end()},
       .frame_count = plan_.frame_count,
       .first_frame = plan_.first_frame,
       .frames_per_second = static_cast<float>(plan_.frames_per_second),
       .rate = rate,
       .unit = CalibrationUnitsName(static_cast<std::uint32_t>(document_.Units())),
       .vertical_axis = AxisName(options_.vertical_axis)});
  const std::size_t size = plan_.parameters.size();
  if (size <= kMostC3dParameterBytes) return std::nullopt;
  return C3dRefusal{Reason::kNamesTooLong, size, kMostC3dParameterBytes, nullptr, 0};
}

}  // namespace

C3dPlan PlanC3d(const TRCDocument& document, const C3dOptions& options) {
  C3dPlan plan;
  plan.refusal = Planner(document, options, plan).Plan();
  return plan;
}

}  // namespace orvane
