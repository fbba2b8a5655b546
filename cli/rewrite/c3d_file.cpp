#include "cli/rewrite/c3d_file.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include "formats/c3d/writer.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/check/findings.h"

namespace cli {
namespace {

using orvane::C3dLosses;
using orvane::C3dOptions;
using orvane::C3dPlan;
using orvane::C3dRefusal;
using orvane::CountOf;
using orvane::FrameRate;
using orvane::Quote;
using orvane::RewriteLoss;
using orvane::TRCDocument;

C3dOptions OptionsFor(const Wording& wording) {
  constexpr std::size_t kLongestRate = 255;
  C3dOptions options;
  options.first_time = wording.first_time;
  if (const auto rate = orvane::ParseFrameRate(wording.rates.data)) {
    const double number =
        static_cast<double>(rate->numerator) / static_cast<double>(rate->denominator);
    const std::string& text = wording.rates.data;
    options.rate = {number, text.size() <= kLongestRate ? text : orvane::FormatShortest(number)};
  }
  if (wording.order.up == UpAxis::kZ) options.vertical_axis = orvane::kAxisZ;
  return options;
}

std::string NumberOf(std::size_t frame, const TRCDocument& document) {
  return orvane::FormatInt(document.FirstFrame() + static_cast<std::int64_t>(frame));
}

std::string Digits(std::size_t count) {
  return orvane::FormatInt(static_cast<std::int64_t>(count));
}

Failure Worded(const C3dRefusal& refusal, const TRCDocument& document, const Wording& wording) {
  using Reason = C3dRefusal::Reason;
  switch (refusal.reason) {
    case Reason::kTooManyMarkers:
      return NoFile(wording,
                    "it has " + CountOf(refusal.count, "marker") + ", and a C3D file counts " +
                        Digits(refusal.most) + " at most",
                    "--select takes some of them alone.");
    case Reason::kTooManyFrames:
      return NoFile(wording,
                    "its " + CountOf(refusal.count, "frame") +
                        " would have numbers that no C3D file can hold",
                    "--start-frame gives others.");
    case Reason::kNamesTooLong:
      return NoFile(wording,
                    "the names of its markers are too long for a C3D file: they would take " +
                        Digits(refusal.count) + " bytes of " + Digits(refusal.most),
                    "--rename gives other names; --select takes some markers alone.");
    case Reason::kRate:
      return NoFile(wording, "it has no frame rate above 0 that a C3D file can hold", "");
    case Reason::kNotFinite:
      break;
  }
  return NoFile(wording,
                "its marker " + Quote(refusal.marker->Name()) + " has a coordinate in frame " +
                    NumberOf(refusal.frame, document) +
                    " that is too large or none, which a C3D file cannot hold",
                "--cut takes other frames alone, and --select other markers.");
}

// With two digits that count.
std::string Millimeters(double length) {
  constexpr int kMost = 20;
  const int decimals = std::clamp(1 - static_cast<int>(std::floor(std::log10(length))), 0, kMost);
  return orvane::FormatDouble(length, decimals) + " mm";
}

void AddLabels(const C3dLosses& lost, std::vector<RewriteLoss>& losses) {
  for (const C3dLosses::Label& each : lost.labels) {
    const std::string& name = each.marker->Name();
    if (each.is_cut) {
      losses.push_back({"rewrite-name-changed",
                        {name},
                        "",
                        "Of " + CountOf(name.size(), "byte") + " the first " +
                            Digits(each.label.size()) + " are kept."});
    }
    if (each.is_beyond_ascii || each.has_blanks_at_end) {
      losses.push_back({"rewrite-name-encoding", {name}, "", ""});
    }
  }
}

// "a camera rate of 120", unless it is the frame rate.
std::string OtherRate(const std::string& what, const std::string& text,
                      const std::optional<FrameRate>& rate) {
  const auto other = orvane::ParseFrameRate(text);
  return !other || other == rate ? "" : what + " rate of " + text;
}

void AddRates(const C3dPlan& plan, const Wording& wording, std::vector<RewriteLoss>& losses) {
  const auto rate = orvane::ParseFrameRate(wording.rates.data);
  const std::string camera = OtherRate("a camera", wording.rates.camera, rate);
  const std::string original = OtherRate("an original", wording.rates.original, rate);
  const std::string both = camera.empty() || original.empty() ? "" : " and ";
  if (!camera.empty() || !original.empty()) {
    losses.push_back({"rewrite-rate-lost", {}, camera + both + original, ""});
  }
  if (plan.losses.is_rate_rounded) {
    losses.push_back({"rewrite-rate-rounded", {}, wording.rates.data, ""});
  }
}

void AddFrames(const C3dPlan& plan, const TRCDocument& document, std::vector<RewriteLoss>& losses) {
  const C3dLosses& lost = plan.losses;
  if (lost.rounding) {
    losses.push_back({"rewrite-coordinate-rounded",
                      {lost.rounding->marker->Name()},
                      "",
                      "It is rounded to single precision, as all are: by " +
                          Millimeters(lost.rounding->error_mm) + " in frame " +
                          NumberOf(lost.rounding->frame, document) + ", and nowhere by more."});
  }
  if (lost.first_frame) {
    losses.push_back({"rewrite-start-frame-lost",
                      {},
                      orvane::FormatInt(*lost.first_frame),
                      "The frames of the new file are numbered from 1."});
  }
  if (lost.first_time) {
    constexpr int kDecimals = 3;
    losses.push_back(
        {"rewrite-time-lost", {}, orvane::FormatDouble(*lost.first_time, kDecimals) + " s", ""});
  }
  if (lost.is_beyond_header) {
    losses.push_back({"rewrite-frames-uncounted",
                      {},
                      Digits(std::size_t{plan.first_frame} + plan.frame_count - 1),
                      ""});
  }
}

std::vector<RewriteLoss> LossesOf(const C3dPlan& plan, const TRCDocument& document,
                                  const Wording& wording) {
  std::vector<RewriteLoss> losses;
  AddLabels(plan.losses, losses);
  AddRates(plan, wording, losses);
  AddFrames(plan, document, losses);
  return losses;
}

}  // namespace

PreparedFile PrepareC3d(const TRCDocument& document, const Wording& wording) {
  auto plan = std::make_shared<const C3dPlan>(PlanC3d(document, OptionsFor(wording)));
  if (plan->refusal) return Refusing(Worded(*plan->refusal, document, wording));
  return {LossesOf(*plan, document, wording),
          [plan](const orvane::TextTaker& take) { PrintC3d(*plan, take); }, std::nullopt,
          std::int64_t{plan->first_frame}};
}

}  // namespace cli
