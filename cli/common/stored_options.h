#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host/desktop/settings.h"

// What a dialog of the plug-in finds of the choices that were made in it before.

namespace cli {

class StoredOptions {
 public:
  // Those of the class `class_name` ("ImportHTR") in `settings`, which outlive this.
  StoredOptions(const host::Settings& settings, const std::string& class_name);

  // Nothing when there is no such value.
  std::optional<bool> Flag(const std::string& name) const;
  // Nothing when there is no such value, or one of another size.
  std::optional<std::int32_t> Int(const std::string& name) const;
  std::optional<float> Float(const std::string& name) const;
  std::optional<double> Double(const std::string& name) const;

 private:
  template <typename Value>
  std::optional<Value> Read(const std::string& name) const;

  const host::Settings& settings_;
  const std::string path_;
};

}  // namespace cli
