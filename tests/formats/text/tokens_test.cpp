#include "formats/text/tokens.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace orvane {
namespace {

std::vector<std::string_view> AllFirstTokens(std::string_view line) {
  std::vector<std::string_view> tokens;
  for (auto token = TakeFirstToken(line); !token.empty(); token = TakeFirstToken(line)) {
    tokens.push_back(token);
  }
  return tokens;
}

TEST(Tokens, AreSeparatedByBlanksAndTabs) {
  EXPECT_EQ(AllFirstTokens("Hips\t1.5  2 \t 3"),
            (std::vector<std::string_view>{"Hips", "1.5", "2", "3"}));
}

TEST(Tokens, AreSeparatedByNothingElse) {
  EXPECT_EQ(AllFirstTokens("a\rb\fc\vd,e"), (std::vector<std::string_view>{"a\rb\fc\vd,e"}));
}

TEST(FirstToken, LeavesTheLineAtTheSeparatorBehindIt) {
  std::string_view line = "  Hips GLOBAL ";
  EXPECT_EQ(TakeFirstToken(line), "Hips");
  EXPECT_EQ(line, " GLOBAL ");
}

TEST(FirstToken, IsEmptyWhenThereIsNone) {
  for (std::string_view line : {"", " ", "\t \t"}) {
    EXPECT_EQ(TakeFirstToken(line), "");
    EXPECT_EQ(line, "");
  }
}

TEST(LastToken, LeavesTheLineBeforeTheSeparatorInFrontOfIt) {
  std::string_view line = " ZYX  of\tall \t";
  EXPECT_EQ(TakeLastToken(line), "all");
  EXPECT_EQ(line, " ZYX  of");
}

TEST(LastToken, MayBeTheWholeLine) {
  std::string_view line = "GLOBAL";
  EXPECT_EQ(TakeLastToken(line), "GLOBAL");
  EXPECT_EQ(line, "");
}

TEST(LastToken, IsEmptyWhenThereIsNone) {
  for (std::string_view line : {"", "  ", "\t"}) {
    EXPECT_EQ(TakeLastToken(line), "");
    EXPECT_EQ(line, "");
  }
}

TEST(Separators, AreTrimmedAtEitherEnd) {
  EXPECT_EQ(SkipSeparators(" \tname \t"), "name \t");
  EXPECT_EQ(TrimTrailingSeparators(" \tname \t"), " \tname");
  EXPECT_EQ(SkipSeparators("\t "), "");
  EXPECT_EQ(TrimTrailingSeparators("\t "), "");
}

}  // namespace
}  // namespace orvane
