#include "python/binding/unit.h"

#include <optional>
#include <stdexcept>

#include "formats/units/units.h"

namespace binding {

std::uint32_t UnitCode(const std::string& unit) {
  const std::optional<std::uint32_t> code = orvane::FindCalibrationUnits(unit);
  if (code) return *code;
  throw std::invalid_argument("unit is \"" + unit +
                              "\"; it is one of \"mm\", \"cm\", \"m\", \"in\", \"ft\" and \"yd\"");
}

}  // namespace binding
