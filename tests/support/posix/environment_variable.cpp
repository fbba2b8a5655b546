#include "tests/support/environment_variable.h"

#include <cstdlib>

namespace test {
namespace {

void Set(const std::string& name, const std::optional<std::string>& value) {
  if (value) {
    setenv(name.c_str(), value->c_str(), 1);
  } else {
    unsetenv(name.c_str());
  }
}

}  // namespace

EnvironmentVariable::EnvironmentVariable(const char* name, const std::optional<std::string>& value)
    : name_(name) {
  if (const char* const former = std::getenv(name)) former_ = former;
  Set(name_, value);
}

EnvironmentVariable::~EnvironmentVariable() { Set(name_, former_); }

}  // namespace test
