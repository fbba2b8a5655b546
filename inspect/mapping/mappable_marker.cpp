#include "inspect/mapping/mappable_marker.h"

#include <algorithm>

#include "formats/mnm/mapping_lines.h"

namespace orvane {

bool CanBeMapped(std::span<const std::string> names, std::size_t marker) {
  const std::string& name = names[marker];
  return !CannotBeMapped(name) && std::count(names.begin(), names.end(), name) == 1;
}

}  // namespace orvane
