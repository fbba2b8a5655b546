#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host/desktop/settings.h"

// What a dialog of the plug-in finds of the choices that were made in it before.

namespace cli {

class StoredOptions {
 public:
  // Those in `settings`, which outlive this, of the class whose name is the string `class_id`
  // (IDS_IMPORT_HTR) of the module.
  StoredOptions(const host::Settings& settings, unsigned int class_id);

  // Nothing when there is no such value.
  [[nodiscard]] std::optional<bool> Flag(const std::string& name) const;
  // Nothing when there is no such value, or one of another size.
  [[nodiscard]] std::optional<std::int32_t> Int(const std::string& name) const;
  [[nodiscard]] std::optional<float> Float(const std::string& name) const;
  [[nodiscard]] std::optional<double> Double(const std::string& name) const;

 private:
  template <typename Value>
  [[nodiscard]] std::optional<Value> Read(const std::string& name) const;

  const host::Settings& settings_;
  const std::string path_;
};

}  // namespace cli
