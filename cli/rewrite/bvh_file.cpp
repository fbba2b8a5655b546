#include "cli/rewrite/bvh_file.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "formats/bvh/writer.h"
#include "formats/pose/hierarchy.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/check/findings.h"

namespace cli {
namespace {

using orvane::BvhLosses;
using orvane::BvhOptions;
using orvane::BvhPlan;
using orvane::BvhRefusal;
using orvane::HtrDocument;
using orvane::Quote;
using orvane::RewriteLoss;

using Names = std::vector<std::string>;

Names RootsOf(const HtrDocument& document) {
  Names roots;
  for (const orvane::HierarchyEntry& entry : orvane::ListHierarchy(document)) {
    if (entry.depth == 0) roots.push_back(entry.segment->GetName());
  }
  return roots;
}

// The first names, for a sentence.
std::string Listed(const Names& names) {
  constexpr std::size_t kMost = 5;
  std::string list;
  for (std::size_t index = 0; index < std::min(names.size(), kMost); ++index) {
    list += (index == 0 ? "" : ", ") + Quote(names[index]);
  }
  return names.size() > kMost ? list + ", ..." : list;
}

// The number of the root that is asked for. Throws a Failure when there is none, or more than one
// and none is named.
std::size_t ChooseRoot(const Names& roots, const Wording& wording) {
  const std::string& name = wording.order.root;
  if (name.empty() && roots.size() > 1) {
    throw NoFile(wording,
                 "it has " + orvane::CountOf(roots.size(), "root") + ", " + Listed(roots) +
                     ", and a BVH file holds one",
                 "--root " + Quote(roots.front()) + " takes that with all that hangs from it.");
  }
  if (name.empty()) return 0;
  const auto root = std::find(roots.begin(), roots.end(), name);
  if (root != roots.end()) return static_cast<std::size_t>(root - roots.begin());
  throw NoFile(wording, "it has no root " + Quote(name),
               roots.empty() ? "" : "Its roots are: " + Listed(roots) + ".");
}

BvhOptions OptionsFor(const HtrDocument& document, const Wording& wording) {
  BvhOptions options;
  options.root = ChooseRoot(RootsOf(document), wording);
  options.positions = wording.order.positions;
  options.numbers = orvane::BvhNumbers::kShortest;
  if (const std::optional<int> decimals = wording.order.numbers.DecimalsAsked()) {
    options.numbers = orvane::BvhNumbers::kDecimals;
    options.decimals = *decimals;
  }
  if (const auto rate = orvane::ParseFrameRate(wording.rates.data)) {
    options.frame_time =
        static_cast<double>(rate->denominator) / static_cast<double>(rate->numerator);
  }
  return options;
}

std::string NumberOf(std::size_t frame, const HtrDocument& document) {
  return orvane::FormatInt(document.GetStartFrame() + static_cast<std::int64_t>(frame));
}

Failure Worded(const BvhRefusal& refusal, const HtrDocument& document, const Wording& wording) {
  switch (refusal.reason) {
    case BvhRefusal::Reason::kNoRoot:
      return NoFile(wording, "it has no root, of which a BVH file is made", "");
    case BvhRefusal::Reason::kFrameTime:
      return NoFile(wording, "it has no frame rate above 0, which a BVH file needs", "");
    case BvhRefusal::Reason::kNotFinite:
      break;
  }
  const std::string place = refusal.frame ? "frame " + NumberOf(*refusal.frame, document)
                                          : std::string("its base position");
  return NoFile(wording,
                "its segment " + Quote(refusal.segment->GetName()) + " has a number in " + place +
                    " that is too large or none, which a BVH file cannot hold",
                refusal.frame ? "--cut takes other frames alone." : "");
}

template <typename Parts>
Names NamesOf(const Parts& parts) {
  Names names;
  names.reserve(parts.size());
  for (const auto& part : parts) names.push_back(part.segment->GetName());
  return names;
}

void AddNames(const BvhLosses& lost, std::vector<RewriteLoss>& losses) {
  for (const BvhLosses::NewName& each : lost.names) {
    const std::string name = each.segment->GetName();
    losses.push_back(
        {"rewrite-name-changed", {name}, "", Quote(name) + " becomes " + Quote(each.name) + "."});
  }
}

void AddTranslations(const BvhLosses& lost, const HtrDocument& document,
                     std::vector<RewriteLoss>& losses) {
  if (lost.translations.empty()) return;
  const auto& worst = *std::max_element(lost.translations.begin(), lost.translations.end(),
                                        [](const auto& left, const auto& right) {
                                          return left.greatest_error_mm < right.greatest_error_mm;
                                        });
  losses.push_back({"rewrite-translation-held", NamesOf(lost.translations), "",
                    "The new file holds such a segment at its base translation: " +
                        Quote(worst.segment->GetName()) + " is farthest from there, by " +
                        orvane::FormatDouble(worst.greatest_error_mm, 2) + " mm in frame " +
                        NumberOf(worst.frame, document) +
                        "; --positions all lets the segments move."});
}

std::vector<RewriteLoss> LossesOf(const BvhLosses& lost, const HtrDocument& document) {
  std::vector<RewriteLoss> losses;
  AddNames(lost, losses);
  AddTranslations(lost, document, losses);
  const auto add = [&losses](std::string_view code, const Names& names) {
    if (!names.empty()) losses.push_back({code, names, "", ""});
  };
  add("rewrite-frames-held", NamesOf(lost.frames));
  add("rewrite-scale-lost", NamesOf(lost.scales));
  Names unattached;
  unattached.reserve(lost.unattached.size());
  for (const orvane::HtrSegment* segment : lost.unattached) {
    unattached.push_back(segment->GetName());
  }
  add("rewrite-segment-unattached", unattached);
  if (lost.has_no_frames) losses.push_back({"rewrite-frame-added", {}, "", ""});
  if (lost.turned_in_base > 0) {
    losses.push_back(
        {"rewrite-base-lost", {}, orvane::CountOf(lost.turned_in_base, "segment"), ""});
  }
  if (lost.first_frame) {
    losses.push_back({"rewrite-start-frame-lost",
                      {},
                      orvane::FormatInt(*lost.first_frame),
                      "The frames of the new file have no numbers."});
  }
  const std::string_view unit = orvane::CalibrationUnitsName(document.GetCalibrationUnits());
  losses.push_back({"rewrite-unit-lost", {}, unit == "in" ? "inches" : std::string(unit), ""});
  return losses;
}

}  // namespace

PreparedFile PrepareBvh(const HtrDocument& document, const Wording& wording) {
  try {
    auto plan = std::make_shared<const BvhPlan>(PlanBvh(document, OptionsFor(document, wording)));
    if (plan->refusal) return Refusing(Worded(*plan->refusal, document, wording));
    return {LossesOf(plan->losses, document),
            [plan](const orvane::TextTaker& take) { PrintBvh(*plan, take); }, plan->joints.size()};
  } catch (const Failure& failure) {
    return Refusing(failure);
  }
}

}  // namespace cli
