#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/htr/read_observer.h"
#include "inspect/check/findings.h"

// What is said of single numbers and words of an HTR file.

namespace orvane::htr {

// The rule of one of the oddities of numbers.
const FindingRule& NumberRule(HtrOddity oddity);

// What should have stood where `oddity` was met. `field` is a keyword of the header or the name of
// a column.
std::string ExpectedNumber(HtrOddity oddity, std::string_view field);
// Whether `cell` of `field`, too large for a length, is an angle or a factor, which may be so
// large.
bool MayBeSoLarge(std::string_view cell, std::string_view field);

// What the reader takes for `cell`.
std::string EffectOfNumber(std::string_view cell, std::string_view field);

// Why no motion section, or no child, can name a segment that is called `name`; empty when they
// can.
std::string WhyUnusable(std::string_view name);

// The special section that `name` looks like; empty when there is none.
std::string_view SectionLikelyMeant(std::string_view name);

}  // namespace orvane::htr
