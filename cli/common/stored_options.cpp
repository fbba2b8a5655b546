#include "cli/common/stored_options.h"

#include <cstring>

#include "cli/common/plugin_strings.h"

namespace cli {

StoredOptions::StoredOptions(const host::Settings& settings, unsigned int class_id)
    : settings_(settings),
      path_("Software\\Orvane\\OrvaneFileIO\\Skelder\\" + std::string(PluginText(class_id))) {}

std::optional<bool> StoredOptions::Flag(const std::string& name) const {
  const auto stored = settings_.FindValue(path_, name);
  if (!stored || stored->bytes.empty()) return std::nullopt;
  return stored->bytes.front() != 0;  // of a double word, too, the first byte is the flag
}

std::optional<std::int32_t> StoredOptions::Int(const std::string& name) const {
  return Read<std::int32_t>(name);
}

std::optional<float> StoredOptions::Float(const std::string& name) const {
  return Read<float>(name);
}

std::optional<double> StoredOptions::Double(const std::string& name) const {
  return Read<double>(name);
}

template <typename Value>
std::optional<Value> StoredOptions::Read(const std::string& name) const {
  const auto stored = settings_.FindValue(path_, name);
  Value value;
  if (!stored || stored->bytes.size() != sizeof value) return std::nullopt;
  std::memcpy(&value, stored->bytes.data(), sizeof value);
  return value;
}

}  // namespace cli
