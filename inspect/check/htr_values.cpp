#include "inspect/check/htr_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "formats/htr/sections.h"
#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "inspect/check/htr_keywords.h"
#include "inspect/check/htr_rules.h"
#include "inspect/check/similar_words.h"

namespace orvane::htr {
namespace {

constexpr std::string_view kFrameColumn = "Frame";

bool IsWhole(std::string_view field) {
  return field == kFrameColumn || field == "NumSegments" || field == "NumFrames" ||
         field == "DataFrameRate";
}

bool IsFactor(std::string_view field) {
  return field == "BoneScaleFactor" || field == "ScaleFactor";
}

bool IsLength(std::string_view field) {
  return field == "Tx" || field == "Ty" || field == "Tz" || field == "BoneLength";
}

std::string WholeNumberInRange(std::string_view field) {
  using Limits = std::numeric_limits<std::int32_t>;
  return "a whole number from " + FormatInt(field == "NumFrames" ? 0 : Limits::min()) + " to " +
         FormatInt(Limits::max());
}

std::string TakenWhole(std::string_view cell, std::string_view field) {
  const std::int32_t value = ParseInt(cell);
  return FormatInt(field == "NumFrames" ? std::max(value, 0) : value) + " is taken";
}

}  // namespace

const FindingRule& NumberRule(HtrOddity oddity) {
  if (oddity == HtrOddity::kMissingNumber) return Rule("htr-number-missing");
  if (oddity == HtrOddity::kUnreadableNumber) return Rule("htr-number-unreadable");
  return oddity == HtrOddity::kCutNumber ? Rule("htr-number-cut") : Rule("htr-number-out-of-range");
}

std::string ExpectedNumber(HtrOddity oddity, std::string_view field) {
  const bool is_out_of_bounds = oddity == HtrOddity::kNumberOutOfBounds;
  std::string expected = IsWhole(field) ? "a whole number" : "a number";
  if (is_out_of_bounds) expected = IsWhole(field) ? WholeNumberInRange(field) : "a finite number";
  return expected + " for " + std::string(field);
}

bool MayBeSoLarge(std::string_view cell, std::string_view field) {
  return !IsWhole(field) && !IsLength(field) && std::isfinite(ParseDouble(cell));
}

std::string EffectOfNumber(std::string_view cell, std::string_view field) {
  if (field == kFrameColumn) {
    return TakenWhole(cell, field) + "; only the first frame number of a file is used.";
  }
  if (IsWhole(field)) return TakenWhole(cell, field) + ".";
  const double value = ParseDouble(cell);
  const bool is_finite = IsLength(field) ? FitsSinglePrecision(value) : std::isfinite(value);
  if (!is_finite && IsFactor(field)) return "It is taken as infinite; the import does not use it.";
  if (!is_finite) return "It is taken as infinite: a scene that it gets into cannot be saved.";
  return FormatShortest(value) + " is taken.";
}

std::string WhyUnusable(std::string_view name) {
  if (name == orvane::kGlobalParent) return "Segments that name it as their parent become roots.";
  if (SectionOf(name) != HtrSection::kMotion) {
    return "Its motion section would be another section of the file.";
  }
  if (name.find(']') != std::string_view::npos) {
    return "The name of its motion section ends at the ].";
  }
  if (name.front() == '[') return "A line that starts with it is a section line.";
  return {};
}

std::string_view SectionLikelyMeant(std::string_view name) {
  constexpr std::array<std::string_view, 4> kSections = {
      orvane::kHeaderSection, orvane::kHierarchySection, orvane::kBasePositionSection,
      orvane::kEndOfFileSection};
  const auto meant =
      std::find_if(kSections.begin(), kSections.end(),
                   [name](std::string_view section) { return LooksLike(name, section); });
  return meant == kSections.end() ? std::string_view() : *meant;
}

}  // namespace orvane::htr
