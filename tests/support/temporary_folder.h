#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

namespace test {

// A new folder for one test, removed with all that is in it when the test is over.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_(std::filesystem::path(testing::TempDir()) / UniqueName()) {
    std::filesystem::create_directories(path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  // Tests run in processes of their own at the same time.
  static std::string UniqueName() {
    std::random_device random;
    return "orvane-" + std::to_string(std::uint64_t{random()} << 32U | random());
  }

  std::filesystem::path path_;
};

}  // namespace test
