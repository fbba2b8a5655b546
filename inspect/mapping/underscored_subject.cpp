#include "inspect/mapping/underscored_subject.h"

#include <algorithm>

#include "inspect/mapping/marker_words.h"

namespace orvane {

bool IsSideOfTheBody(std::string_view prefix) {
  return WordsOf(std::string(prefix) + "x").place == "x";
}

bool IsMoreThanNumber(std::string_view rest) {
  return rest.find_first_not_of("0123456789_") != std::string_view::npos;
}

std::string SharedSubject(const std::vector<std::string_view>& names) {
  if (names.size() < 2) return "";
  const std::string_view prefix = names.front().substr(0, names.front().find('_') + 1);
  if (prefix.size() < 2 || IsSideOfTheBody(prefix)) return "";
  const bool is_shared = std::all_of(names.begin(), names.end(), [prefix](std::string_view name) {
    return name.starts_with(prefix) && IsMoreThanNumber(name.substr(prefix.size()));
  });
  return is_shared ? std::string(prefix) : "";
}

}  // namespace orvane
