#pragma once

#include <optional>
#include <string>

#include "tests/support/environment_variable.h"
#include "tests/support/temporary_folder.h"

namespace test {

// A place for the module's log that is empty at first, until the end of the scope. On POSIX systems
// it is the state folder of a user who is made for it; Windows has only one place for the log, and
// what is there is lost.
class LogPlace {
 public:
  LogPlace();
  LogPlace(const LogPlace&) = delete;
  LogPlace& operator=(const LogPlace&) = delete;
  ~LogPlace();

  // From now on no log can be opened.
  void Obstruct();

  // Tries to take the log away from whoever has it open. Returns the path it has then: another one
  // where an open file can be moved, its own otherwise.
  std::string TakeAway();

 private:
  TemporaryFolder folder_;
  std::optional<EnvironmentVariable> place_;
};

}  // namespace test
