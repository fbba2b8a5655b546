#include "inspect/check/similar_words.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using orvane::LooksLike;

TEST(SimilarWords, DifferInCaseOrByTwoLetters) {
  EXPECT_TRUE(LooksLike("EndOFFile", "EndOfFile"));
  EXPECT_TRUE(LooksLike("numframes", "NumFrames"));
  EXPECT_TRUE(LooksLike("NumFrame", "NumFrames"));
  EXPECT_TRUE(LooksLike("NummFrrames", "NumFrames"));
  EXPECT_TRUE(LooksLike("NumFarmes", "NumFrames"));
  EXPECT_FALSE(LooksLike("NmFrms", "NumFrames"));
  EXPECT_FALSE(LooksLike("Hips", "NumFrames"));
}

TEST(SimilarWords, AreNotTheSameWord) { EXPECT_FALSE(LooksLike("Header", "Header")); }

TEST(SimilarWords, DifferInCaseAloneWhenShort) {
  EXPECT_TRUE(LooksLike("hips", "Hips"));
  EXPECT_FALSE(LooksLike("lips", "Hips"));
}

TEST(SimilarWords, AreNotLong) {
  const std::string longest(40, 'a');
  EXPECT_TRUE(LooksLike(longest.substr(1), longest));
  EXPECT_FALSE(LooksLike(longest, longest + 'a'));
  EXPECT_FALSE(LooksLike("", ""));
}

}  // namespace
