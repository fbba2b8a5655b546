#include "formats/trc/row_width.h"

#include <algorithm>

namespace orvane {
namespace {

std::size_t CountTabs(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\t'));
}

}  // namespace

TRCRowWidth WidthOf(std::string_view text) { return WidthOf(text, 1 + CountTabs(text)); }

TRCRowWidth WidthOf(std::string_view text, std::size_t fields) {
  const std::size_t end = text.find_last_not_of(" \t\r");
  if (end == std::string_view::npos) return {fields, 0};
  return {fields, fields - CountTabs(text.substr(end + 1))};
}

}  // namespace orvane
