#pragma once

#include <optional>
#include <string>

namespace test {

// Gives an environment variable another value, or none, until the end of the scope.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const std::optional<std::string>& value);
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
  ~EnvironmentVariable();

 private:
  std::string name_;
  std::optional<std::string> former_;
};

}  // namespace test
