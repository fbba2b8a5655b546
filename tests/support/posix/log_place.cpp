#include "tests/support/log_place.h"

#include "platform/log_file.h"

namespace test {

LogPlace::LogPlace() { place_.emplace("XDG_STATE_HOME", folder_.Path()); }

LogPlace::~LogPlace() = default;

void LogPlace::Obstruct() {
  place_.reset();
  place_.emplace("XDG_STATE_HOME", folder_.Write("file", "where the folder should be"));
}

std::string LogPlace::TakeAway() {
  std::string moved = folder_.File("moved");
  std::filesystem::rename(platform::LogFilePath(), moved);
  return moved;
}

}  // namespace test
