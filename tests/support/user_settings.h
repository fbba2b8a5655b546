#pragma once

#include <optional>
#include <string>

#include "tests/support/environment_variable.h"

namespace test {

// Takes all settings away from the user who runs the tests, until the end of the scope. On POSIX
// systems they are kept below `folder` meanwhile, where programs that are run have to be sent by
// XDG_CONFIG_HOME; on Windows the user has only one place for them, and no two tests may run that
// use it at the same time.
class NoUserSettings {
 public:
  explicit NoUserSettings(const std::string& folder);
  NoUserSettings(const NoUserSettings&) = delete;
  NoUserSettings& operator=(const NoUserSettings&) = delete;
  ~NoUserSettings();

  // Whether there are any since.
  [[nodiscard]] bool AreStored() const;

 private:
  std::optional<EnvironmentVariable> place_;
  std::string folder_;
};

}  // namespace test
