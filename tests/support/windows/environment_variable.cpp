#include "tests/support/environment_variable.h"

#include <cstdlib>

namespace test {
namespace {

// An empty value is none here.
void Set(const std::string& name, const std::optional<std::string>& value) {
  _putenv_s(name.c_str(), value.value_or("").c_str());
}

}  // namespace

EnvironmentVariable::EnvironmentVariable(const char* name, const std::optional<std::string>& value)
    : name_(name) {
  if (const char* const former = std::getenv(name)) former_ = former;
  Set(name_, value);
}

EnvironmentVariable::~EnvironmentVariable() { Set(name_, former_); }

}  // namespace test
