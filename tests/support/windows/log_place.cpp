#include "tests/support/log_place.h"

#include "platform/log_file.h"

namespace test {
namespace {

namespace fs = std::filesystem;

fs::path Folder() { return fs::path(platform::LogFilePath()).parent_path(); }

}  // namespace

LogPlace::LogPlace() {
  fs::remove_all(Folder());
  fs::create_directory(Folder());
}

LogPlace::~LogPlace() {
  std::error_code ignored;
  fs::remove_all(Folder(), ignored);
}

void LogPlace::Obstruct() { fs::remove(Folder()); }

std::string LogPlace::TakeAway() {
  std::error_code error;
  fs::rename(platform::LogFilePath(), folder_.File("moved"), error);
  EXPECT_TRUE(error) << "an open log stays where it is";
  return platform::LogFilePath();
}

}  // namespace test
