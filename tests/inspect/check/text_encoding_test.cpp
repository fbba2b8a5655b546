#include "inspect/check/text_encoding.h"

#include <gtest/gtest.h>

namespace {

using orvane::IsUtf8;

TEST(TextEncoding, TakesAsciiAndCharactersOfUpToFourBytes) {
  for (const char* const text : {"", "LFHD", "t\xC3\xAAte", "\xE9\xA0\xAD", "\xF0\x9F\xA6\xB4"}) {
    EXPECT_TRUE(IsUtf8(text)) << text;
  }
}

TEST(TextEncoding, TakesNoNarrowEncodingAndNoPiecesOfCharacters) {
  for (const char* const text :
       {"t\xEAte", "t\xEA", "\xA0", "\xC3", "\xE9\xA0", "\xC0\x80", "\xF0\x9F\xA6g", "\xFF"}) {
    EXPECT_FALSE(IsUtf8(text)) << text;
  }
}

}  // namespace
