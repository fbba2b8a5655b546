#include "platform/string_table.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/module.h"

namespace {

// Loads string `id` with room for `size` characters and checks the count that is returned.
std::string Load(HINSTANCE module, unsigned int id, std::size_t size) {
  std::array<char, 64> buffer;
  buffer.fill('#');
  const std::size_t count = platform::LoadStringResource(module, id, buffer.data(), size);
  EXPECT_EQ(buffer.at(count), '\0');
  EXPECT_EQ(buffer.at(size), '#') << "wrote beyond the buffer";
  return std::string(buffer.data(), count);
}

constexpr unsigned int kCategory = 2;

TEST(StringTableTest, CopiesTheString) {
  EXPECT_EQ(Load(platform::ModuleHandle(), kCategory, 63), "Motion Capture");
}

TEST(StringTableTest, CutsToTheBuffer) {
  EXPECT_EQ(Load(platform::ModuleHandle(), kCategory, 15), "Motion Capture");
  EXPECT_EQ(Load(platform::ModuleHandle(), kCategory, 14), "Motion Captur");
  EXPECT_EQ(Load(platform::ModuleHandle(), kCategory, 2), "M");
  EXPECT_EQ(Load(platform::ModuleHandle(), kCategory, 1), "");
}

TEST(StringTableTest, EmptiesTheBufferWhenThereIsNoSuchString) {
  EXPECT_EQ(Load(platform::ModuleHandle(), 0, 63), "");
  EXPECT_EQ(Load(platform::ModuleHandle(), 99, 63), "");
  EXPECT_EQ(Load(nullptr, kCategory, 63), "") << "no module is not the program";
}

}  // namespace
