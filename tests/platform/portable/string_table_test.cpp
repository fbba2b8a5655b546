#include "platform/string_table.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/portable/module_resources.h"
#include "tests/support/resource_builder.h"

namespace platform {
namespace {

class StringTableTest : public testing::Test {
 protected:
  // Loads string `id` with room for `size` characters and checks the count that is returned.
  std::string Load(HINSTANCE module, unsigned int id, std::size_t size) {
    std::array<char, 32> buffer;
    buffer.fill('#');
    const std::size_t count = LoadStringResource(module, id, buffer.data(), size);
    EXPECT_EQ(buffer.at(count), '\0');
    EXPECT_EQ(buffer.at(size), '#') << "wrote beyond the buffer";
    return std::string(buffer.data(), count);
  }

  const test::ResourceBytes file_ = test::FileBytes({test::EntryBytes(
      test::kStringType, 1, test::StringBlockBytes({u"", u"Motion", u"a\u00E9\U0001F600z"}))});
  HINSTANCE__ module_{file_};
};

TEST_F(StringTableTest, CopiesTheString) { EXPECT_EQ(Load(&module_, 1, 31), "Motion"); }

TEST_F(StringTableTest, CutsToTheBuffer) {
  EXPECT_EQ(Load(&module_, 1, 7), "Motion");
  EXPECT_EQ(Load(&module_, 1, 6), "Motio");
  EXPECT_EQ(Load(&module_, 1, 2), "M");
  EXPECT_EQ(Load(&module_, 1, 1), "");
}

TEST_F(StringTableTest, NeverCutsThroughACharacter) {
  EXPECT_EQ(Load(&module_, 2, 9), "a\xC3\xA9\xF0\x9F\x98\x80z");
  EXPECT_EQ(Load(&module_, 2, 8), "a\xC3\xA9\xF0\x9F\x98\x80");
  EXPECT_EQ(Load(&module_, 2, 7), "a\xC3\xA9");
  EXPECT_EQ(Load(&module_, 2, 4), "a\xC3\xA9");
  EXPECT_EQ(Load(&module_, 2, 3), "a");
}

TEST_F(StringTableTest, EmptiesTheBufferWhenThereIsNoSuchString) {
  EXPECT_EQ(Load(&module_, 0, 31), "");
  EXPECT_EQ(Load(&module_, 3, 31), "");
  EXPECT_EQ(Load(&module_, 99, 31), "");
  EXPECT_EQ(Load(nullptr, 1, 31), "");
}

}  // namespace
}  // namespace platform
