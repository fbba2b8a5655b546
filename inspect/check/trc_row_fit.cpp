#include "inspect/check/trc_row_fit.h"

namespace orvane::trc {
namespace {

constexpr std::size_t kFieldsOfAMarker = 3;

}  // namespace

std::optional<std::size_t> FieldsThatMisfit(const TrcWidths& widths, std::size_t named) {
  if (named == 0 || widths.last_value == 0) return std::nullopt;
  if (widths.widest < named) return widths.widest;
  if (widths.usual_last_value > named) return widths.usual_last_value;
  const bool ends_inside_a_sample =
      widths.last_value < named && (named - widths.last_value) % kFieldsOfAMarker != 0;
  return ends_inside_a_sample ? std::optional(widths.last_value) : std::nullopt;
}

}  // namespace orvane::trc
