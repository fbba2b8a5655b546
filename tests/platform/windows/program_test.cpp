#include "platform/program.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

TEST(ProgramFolder, HoldsTheProgram) {
  const std::filesystem::path folder = platform::ProgramFolder();
  EXPECT_TRUE(folder.is_absolute()) << folder;
  EXPECT_TRUE(std::filesystem::exists(folder / "platform_windows_test.exe")) << folder;
}

}  // namespace
