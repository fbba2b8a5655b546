#include "host/scene/user_properties.h"

#include <algorithm>

namespace host {

void UserProperties::Set(const std::string& key, float value) {
  const auto place = LowerBound(key);
  if (place != numbers_.end() && *place->first == key) {
    numbers_[static_cast<std::size_t>(place - numbers_.begin())].second = value;
  } else {
    numbers_.insert(place, {&key, value});
  }
}

std::optional<float> UserProperties::Find(std::string_view key) const {
  const auto place = LowerBound(key);
  if (place == numbers_.end() || *place->first != key) return std::nullopt;
  return place->second;
}

UserProperties::Numbers::const_iterator UserProperties::LowerBound(std::string_view key) const {
  return std::lower_bound(
      numbers_.begin(), numbers_.end(), key,
      [](const auto& number, std::string_view wanted) { return *number.first < wanted; });
}

}  // namespace host
