#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "inspect/check/findings.h"
#include "inspect/summary/motion_summary.h"
#include "inspect/summary/subject.h"

// What no capture has, though every cell of the file can be read: bodies as large as a house, and
// positions beyond the horizon. Lengths are in the file's unit (formats/units). Nothing fails but
// for want of memory.

namespace orvane {

// What is told of `subject` when its size is none of a body, a hand or a face: its unit is another,
// most likely.
[[nodiscard]] std::optional<FindingWords> WordsOfOddSize(const std::optional<Subject>& subject,
                                                         std::uint32_t length_unit);

// Whether `point` is farther from the origin than anything that is captured: such a number stands
// for a position that is missing.
[[nodiscard]] bool IsOutOfSight(const Point& point, std::uint32_t length_unit);

// What is told of one; `name` is whose position it is.
[[nodiscard]] FindingWords WordsOfOutOfSight(const std::string& name, const Point& point,
                                             std::uint32_t length_unit);

}  // namespace orvane
