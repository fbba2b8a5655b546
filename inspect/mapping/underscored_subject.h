#pragma once

#include <string>
#include <string_view>
#include <vector>

// The name of a subject that stands before markers with an underscore behind it, in the place of a
// colon. Nothing fails but for want of memory.

namespace orvane {

// Whether `prefix`, which ends with an underscore, is the side of the body: "Left_" before a place
// is no subject.
[[nodiscard]] bool IsSideOfTheBody(std::string_view prefix);

// Whether `rest`, behind an underscore, may be a marker by itself: a number there is that of one of
// several.
[[nodiscard]] bool IsMoreThanNumber(std::string_view rest);

// What all of `names`, two or more in small letters, have before their first underscores, with it;
// empty when that is no subject.
[[nodiscard]] std::string SharedSubject(const std::vector<std::string_view>& names);

}  // namespace orvane
