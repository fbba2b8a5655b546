#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "platform/path_text.h"

namespace test {

// A new folder for one test, removed with all that is in it when the test is over.
class TemporaryFolder {
 public:
  TemporaryFolder() : TemporaryFolder(platform::PathOf(testing::TempDir())) {}
  explicit TemporaryFolder(const std::filesystem::path& parent) : path_(parent / UniqueName()) {
    std::filesystem::create_directories(path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::string File(const std::string& name) const {
    return platform::TextOf(path_ / platform::PathOf(name));
  }

  // Writes `bytes` to the file `name` and returns its path.
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(File(name), std::ios::binary) << bytes;
    return File(name);
  }

 private:
  // Tests run in processes of their own at the same time.
  static std::string UniqueName() {
    std::random_device random;
    return "orvane-" + std::to_string(std::uint64_t{random()} << 32U | random());
  }

  std::filesystem::path path_;
};

}  // namespace test
