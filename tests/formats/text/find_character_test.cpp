#include "formats/text/find_character.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {
namespace {

// Against the library, for every length and every place of one and of two, from every beginning.
TEST(FindCharacterTest, FindsTheFirstOfAll) {
  for (std::size_t size = 0; size <= 75; ++size) {
    for (std::size_t first = 0; first <= size; ++first) {
      std::string text(size, 'x');
      if (first < size) text[first] = '\n';
      if (size > 0) text[size - 1] = '\n';
      for (std::size_t begin = 0; begin <= size; ++begin) {
        ASSERT_EQ(FindCharacter(text, '\n', begin), text.find('\n', begin))
            << size << " " << first << " " << begin;
      }
    }
  }
}

TEST(FindCharacterTest, TakesNoOtherCharacterForIt) {
  std::string text;
  for (int value = 0; value < 256; ++value) text += std::string(40, static_cast<char>(value));
  for (int value = 0; value < 256; ++value) {
    const char character = static_cast<char>(value);
    EXPECT_EQ(FindCharacter(text, character), text.find(character));
    std::string others = text;
    others.erase(others.find(character), 40);
    EXPECT_EQ(FindCharacter(others, character), std::string_view::npos);
  }
}

}  // namespace
}  // namespace orvane
